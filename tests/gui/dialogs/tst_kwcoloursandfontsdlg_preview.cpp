#include "gui/appearance/kwcolourpreview.h"
#include "support/gui/coloursdialogtest.h"
#include "support/registeredtest.h"

namespace {

using Mode = KWColoursAndFontsDlgImpl::Mode;
constexpr auto TableChart = KWColoursAndFontsDlgImpl::TableChart;
constexpr auto GuestChart = KWColoursAndFontsDlgImpl::GuestChart;
} // namespace

class TestKWColoursAndFontsDlgPreview : public QObject
{
    Q_OBJECT

private slots:
    void theFloorPlanHasAPreview()
    {
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan);
        QVERIFY(!textView(dialog));
        auto *preview = dialog.findChild<KWColourPreview *>();
        QVERIFY(preview);
        QCOMPARE(preview->toolTip(), s("Floor plan preview"));
        QCOMPARE(preview->whatsThis(), s("Floor plan preview"));
        QCOMPARE(preview->parentWidget(), child<QFrame>(dialog, "m_frame"));
        KWColourPreview expected;
        QVERIFY(showActive(dialog));
        expected.resize(preview->size());
        expected.setColours(manyColours());
        const auto picture = [](QWidget &widget) {
            return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        QCOMPARE(picture(*preview), picture(expected));
        dialog.updatePreview();
        QCOMPARE(dialog.findChildren<KWColourPreview *>().size(), 1);
        QVERIFY(dialog.updatesEnabled());
    }

    void eachChoiceOfAColourIsPreviewed()
    {
        KWDocument plan;
        ColoursDialog dialog(plan);
        QVERIFY(showActive(dialog));
        auto *preview = dialog.findChild<KWColourPreview *>();
        for (const char *name :
             {"m_seatsColourButton", "m_seatEdgeColourButton", "m_seatTextColourButton",
              "m_tablesColourButton", "m_tableEdgeColourButton", "m_tableTextColourButton",
              "m_insideColourButton", "m_outsideColourButton", "m_selectedColourButton"}) {
            ScriptedPrompts prompts;
            prompts.answerColour(QColor(Qt::magenta));
            const QImage before = preview->grab().toImage();
            QTest::mouseClick(dialog.colour(name)->findChild<QPushButton *>(), Qt::LeftButton);
            QVERIFY2(preview->grab().toImage() != before, name);
        }
    }

    void theChartsHaveATextForAPreview_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QString>("text");
        QTest::newRow("table chart") << TableChart << s("table\nguest\nguest\nguest\nguest\nguest");
        QTest::newRow("guest chart")
            << GuestChart << s("Guest Table\nguest table\nguest table\nguest table\nguest table");
    }

    void theChartsHaveATextForAPreview()
    {
        QFETCH(Mode, mode);
        QFETCH(QString, text);
        KWDocument plan;
        fill(plan);
        const ColoursDialog dialog(plan, mode);
        QVERIFY(!dialog.findChild<KWColourPreview *>());
        QCOMPARE(dialog.findChildren<QTextEdit *>().size(), 1);
        QTextEdit *view = textView(dialog);
        QCOMPARE(view->toolTip(), s("Chart preview"));
        QVERIFY(view->isReadOnly());
        QCOMPARE(view->parentWidget(), child<QFrame>(dialog, "m_frame"));
        QCOMPARE(view->toPlainText(), text);
        QVERIFY(!view->textCursor().hasSelection());
        // The first line is bold, and only that.
        QTextCursor cursor(view->document());
        cursor.movePosition(QTextCursor::NextCharacter);
        QVERIFY(cursor.charFormat().fontWeight() > QFont::Normal);
        cursor.movePosition(QTextCursor::End);
        QCOMPARE(cursor.charFormat().fontWeight(), int(QFont::Normal));
    }

    void aChartsPreviewHasItsColoursAndFont_data()
    {
        QTest::addColumn<Mode>("mode");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<int>("size");
        QTest::newRow("table chart")
            << TableChart << QColor(31, 32, 33) << QColor(34, 35, 36) << 13;
        QTest::newRow("guest chart")
            << GuestChart << QColor(41, 42, 43) << QColor(44, 45, 46) << 14;
    }

    void aChartsPreviewHasItsColoursAndFont()
    {
        QFETCH(Mode, mode);
        QFETCH(QColor, background);
        QFETCH(QColor, text);
        QFETCH(int, size);
        KWDocument plan;
        fill(plan);
        ColoursDialog dialog(plan, mode);
        QVERIFY(showActive(dialog));
        QTextEdit *view = textView(dialog);
        QCOMPARE(view->font().pointSize(), size);
        const QImage picture = view->viewport()->grab().toImage();
        QCOMPARE(picture.pixelColor(picture.width() - 2, picture.height() - 2), background);
        for (QTextCursor cursor(view->document()); !cursor.atEnd();) {
            cursor.movePosition(QTextCursor::NextCharacter);
            QCOMPARE(cursor.charFormat().foreground().color(), text);
        }

        ScriptedPrompts prompts;
        prompts.answerColour(QColor(200, 0, 0));
        prompts.answerColour(QColor(0, 200, 0));
        dialog.colour("m_chartBackgroundColourButton")->changeColour();
        dialog.colour("m_chartTextColourButton")->changeColour();
        const QImage changed = view->viewport()->grab().toImage();
        QCOMPARE(changed.pixelColor(changed.width() - 2, changed.height() - 2), QColor(200, 0, 0));
        QTextCursor cursor(view->document());
        cursor.movePosition(QTextCursor::End);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(0, 200, 0));
    }
};

REGISTER_TEST(TestKWColoursAndFontsDlgPreview)
#include "tst_kwcoloursandfontsdlg_preview.moc"
