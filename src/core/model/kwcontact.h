#pragma once

#include <QString>

/// A group's address, telephone numbers and e-mail address. A plain value.
class KWContact
{
public:
    KWContact() = default;
    /// The ten fields in the order below.
    KWContact(const QString &line1, const QString &line2, const QString &town,
              const QString &region, const QString &postCode, const QString &nation,
              const QString &workPhone, const QString &homePhone, const QString &mobilePhone,
              const QString &mail);
    KWContact(const KWContact &) = default;
    KWContact &operator=(const KWContact &) = default;
    virtual ~KWContact() = default;

    /// True only when all ten fields are equal, letter case included.
    bool operator==(const KWContact &other) const;

    QString address1;
    QString address2;
    QString city;
    QString state;
    QString zip;
    QString country;
    QString work_phone;
    QString home_phone;
    QString mobile_phone;
    QString email;
};
