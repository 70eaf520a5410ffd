#include "gui/framework/kwprompts.h"

#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmessagetext.h"

#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace {

KWPrompts *replacedPrompts = nullptr;

/// A message box whose text can be copied by the usual key, as it was before it could break.
class MessageBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Copy))
            QGuiApplication::clipboard()->setText(withoutBreaks(text()));
        else
            QMessageBox::keyPressEvent(event);
    }
};

/// What the user wants to save to. Qt would take a name with quotes apart as a list of names.
QString savePath(const QFileDialog &dialog)
{
    const auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (edit && edit->text().contains(u'"'))
        return dialog.directory().absoluteFilePath(edit->text());
    return dialog.selectedFiles().value(0);
}
} // namespace

int KWPrompts::showMessage(QWidget *parent, const KWMessage &message)
{
    // A parent that deletes itself meanwhile takes the box along.
    const QPointer<QMessageBox> box = new MessageBox(
        message.icon == KWMessage::Warning ? QMessageBox::Warning : QMessageBox::Critical,
        message.caption, messageText(message.text), QMessageBox::NoButton, parent);
    // A path in the text may hold what looks like markup.
    box->setTextFormat(Qt::PlainText);
    QList<QAbstractButton *> buttons;
    for (const QString &text : message.buttons) {
        // Buttons of this role keep their order under every desktop's conventions.
        buttons.append(box->addButton(text, QMessageBox::ActionRole));
    }
    box->setDefaultButton(qobject_cast<QPushButton *>(buttons.value(message.defaultButton)));
    box->exec();
    if (!box)
        return -1;
    const auto index = static_cast<int>(buttons.indexOf(box->clickedButton()));
    delete box;
    return index;
}

KWFileAnswer KWPrompts::askFile(QWidget *parent, const KWFileQuestion &question)
{
    QFileDialog dialog(parent, question.caption);
    dialog.setObjectName(question.name);
    dialog.setNameFilters(question.filters.split(QStringLiteral(";;")));
    if (question.mode == KWFileQuestion::Open) {
        dialog.setFileMode(QFileDialog::ExistingFile);
    } else {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
    }
    const QFileInfo start(question.startPath);
    if (start.isDir()) {
        dialog.setDirectory(question.startPath);
    } else {
        dialog.setDirectory(start.path());
        dialog.selectFile(start.fileName());
    }
    const KWArrowCursor arrow;
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const bool saves = question.mode == KWFileQuestion::Save;
    return {saves ? savePath(dialog) : dialog.selectedFiles().value(0),
            dialog.selectedNameFilter()};
}

std::optional<QFont> KWPrompts::askFont(QWidget *parent, const QFont &start)
{
    const KWArrowCursor arrow;
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, start, parent);
    return chosen ? std::optional(font) : std::nullopt;
}

std::optional<QColor> KWPrompts::askColour(QWidget *parent, const QColor &start)
{
    const KWArrowCursor arrow;
    const QColor colour = QColorDialog::getColor(start, parent);
    return colour.isValid() ? std::optional(colour) : std::nullopt;
}

bool KWPrompts::askPrinter(QWidget *parent, QPrinter &printer)
{
    const KWArrowCursor arrow;
    return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

KWPrompts &prompts()
{
    static KWPrompts realPrompts;
    return replacedPrompts ? *replacedPrompts : realPrompts;
}

void setPrompts(KWPrompts *replacement)
{
    replacedPrompts = replacement;
}
