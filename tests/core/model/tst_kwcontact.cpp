#include "core/model/kwcontact.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QtTest>

namespace {
constexpr std::array fields{
    &KWContact::address1,     &KWContact::address2, &KWContact::city,       &KWContact::state,
    &KWContact::zip,          &KWContact::country,  &KWContact::work_phone, &KWContact::home_phone,
    &KWContact::mobile_phone, &KWContact::email};

QStringList texts(const KWContact &contact)
{
    QStringList result;
    for (QString KWContact::*field : fields)
        result.append(contact.*field);
    return result;
}

KWContact complete()
{
    return {s("a1"),      s("a2"),   s("city"), s("state"),  s("zip"),
            s("country"), s("work"), s("home"), s("mobile"), s("email")};
}

const QStringList completeTexts{s("a1"),      s("a2"),   s("city"), s("state"),  s("zip"),
                                s("country"), s("work"), s("home"), s("mobile"), s("email")};
} // namespace

class TestContact : public QObject
{
    Q_OBJECT

private slots:
    void aNewContactIsEmpty()
    {
        QCOMPARE(texts(KWContact()).join(QString()), QString());
        QVERIFY(KWContact() == KWContact());
    }

    void constructorTakesTheTenFieldsInOrder() { QCOMPARE(texts(complete()), completeTexts); }

    void copiesAreEqualAndApart()
    {
        const KWContact contact = complete();
        KWContact copy(contact);
        KWContact assigned;
        assigned = contact;
        QVERIFY(copy == contact);
        QVERIFY(assigned == contact);
        copy.city = s("elsewhere");
        assigned.email.clear();
        QCOMPARE(texts(contact), completeTexts);
    }

    void assigningAContactToItselfDoesNothing()
    {
        KWContact contact = complete();
        const KWContact &same = contact;
        contact = same;
        QCOMPARE(texts(contact), completeTexts);
    }

    void everyFieldCountsForEquality_data()
    {
        QTest::addColumn<int>("field");
        for (int i = 0; i < completeTexts.size(); ++i)
            QTest::newRow(qPrintable(completeTexts.at(i))) << i;
    }
    void everyFieldCountsForEquality()
    {
        QFETCH(int, field);
        QString KWContact::*const text = fields[static_cast<std::size_t>(field)];
        for (const QString &other : {s("other"), QString(), completeTexts.at(field).toUpper()}) {
            KWContact contact = complete();
            contact.*text = other;
            QVERIFY(!(contact == complete()));
            QVERIFY(contact != complete());
            contact.*text = completeTexts.at(field);
            QVERIFY(contact == complete());
        }
    }
};

REGISTER_TEST(TestContact)
#include "tst_kwcontact.moc"
