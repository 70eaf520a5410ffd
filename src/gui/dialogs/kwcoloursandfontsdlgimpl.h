#pragma once

#include "gui/appearance/kwthemefile.h"

#include <QDialog>

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
class KWColoursAndFontsDlgImpl : public QDialog
{
    Q_OBJECT

public:
    enum Mode { FloorPlan, TableChart, GuestChart };

    KWColoursAndFontsDlgImpl(QWidget *parent, KWDocument *document, Mode mode);
    ~KWColoursAndFontsDlgImpl() override;

public slots:
    /// Writes the plan and closes.
    void apply();
    void help();
    void changeFont();
    void loadTheme();
    void saveTheme();
    void deleteTheme();
    void updateButtonStatus();
    void setDefault();
    void updatePreview();
    void moreFonts();
    void languageChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectParts();
    void hideUnused();
    void makePreview();
    void showPreviewTexts();

    KWColours coloursOfPlan() const;
    void showColours(const KWColours &colours);
    /// For a chart as a whole floor plan's: its background is the inside of the room, its text that
    /// of the tables.
    KWColours shownColours() const;

    void listThemes();
    QString currentTheme() const;
    bool isListed(const QString &name) const;

    std::unique_ptr<Ui::KWColoursAndFontsDlg> m_ui;
    KWDocument *m_document;
    QFont m_font;
    /// The one for the floor plan or the one for charts; the other is null.
    KWColourPreview *m_preview = nullptr;
    QTextEdit *m_textView = nullptr;
    Mode m_mode;
    KWThemeFile m_themes;
};
