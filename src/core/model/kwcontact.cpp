#include "core/model/kwcontact.h"

#include <tuple>

namespace {
auto tied(const KWContact &c)
{
    return std::tie(c.address1, c.address2, c.city, c.state, c.zip, c.country, c.work_phone,
                    c.home_phone, c.mobile_phone, c.email);
}
} // namespace

KWContact::KWContact(const QString &line1, const QString &line2, const QString &town,
                     const QString &region, const QString &postCode, const QString &nation,
                     const QString &workPhone, const QString &homePhone, const QString &mobilePhone,
                     const QString &mail)
    : address1(line1)
    , address2(line2)
    , city(town)
    , state(region)
    , zip(postCode)
    , country(nation)
    , work_phone(workPhone)
    , home_phone(homePhone)
    , mobile_phone(mobilePhone)
    , email(mail)
{
}

bool KWContact::operator==(const KWContact &other) const
{
    return tied(*this) == tied(other);
}
