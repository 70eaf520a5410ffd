#pragma once

#include "gui/appearance/kwplancolours.h"
#include "gui/appearance/kwthemefile.h"
#include "gui/framework/kwhelpdialog.h"

#include <memory>

class KWColourPreview;
class KWDocument;
class QTextEdit;

namespace Ui {
class KWColoursAndFontsDlg;
}

/// The dialog that changes the colours and the font of the floor plan or of a chart, and keeps them
/// as themes. The plan is written, after an undo point, only if the dialog is accepted; themes are
/// written at once.
class KWColoursAndFontsDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    using Mode = KWPlanColours::Mode;
    using enum KWPlanColours::Mode;

    KWColoursAndFontsDlgImpl(QWidget *parent, KWDocument *document, Mode mode);
    ~KWColoursAndFontsDlgImpl() override;

public slots:
    /// Writes the plan and closes.
    void apply();
    void changeFont();
    void loadTheme();
    void saveTheme();
    void deleteTheme();
    void updateButtonStatus();
    void setDefault();
    void updatePreview();
    void moreFonts();
    void languageChange() override;

private:
    void connectParts();
    void hideUnused();
    void makePreview();
    void showPreviewTexts();

    void showColours(const KWColours &colours);
    /// For a chart as a whole floor plan's: its background is the inside of the room, its text that
    /// of the tables.
    KWColours shownColours() const;

    void listThemes();
    QString currentTheme() const;
    void selectCurrentTheme();
    QString askThemeName();

    std::unique_ptr<Ui::KWColoursAndFontsDlg> m_ui;
    KWDocument *m_document;
    QFont m_font;
    /// The one for the floor plan or the one for charts; the other is null.
    KWColourPreview *m_preview = nullptr;
    QTextEdit *m_textView = nullptr;
    Mode m_mode;
    KWThemeFile m_themes;
};
