#include "gui/framework/kwonelinetext.h"

#include <QLineEdit>
#include <QValidator>

namespace {

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/// A validator and no slot, since those who follow the field are to see the tidy text only.
class Tidier : public QValidator
{
public:
    explicit Tidier(QLineEdit *field)
        : QValidator(field)
        , m_field(field)
    {
    }

    State validate(QString &text, int & /*pos*/) const override
    {
        if (m_field->isModified())
            text = oneLine(text);
        return Acceptable;
    }

private:
    QLineEdit *m_field;
};
} // namespace

QString oneLine(const QString &text)
{
    QString result = text;
    // One for one, so that a caret stays where it is.
    std::replace_if(result.begin(), result.end(), isControl, QChar(u' '));
    return result;
}

void keepToOneLine(QLineEdit *field)
{
    field->setValidator(new Tidier(field));
}
