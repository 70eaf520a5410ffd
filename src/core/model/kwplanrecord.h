#pragma once

#include "core/model/kwplantext.h"

#include <QString>

#include <array>
#include <string_view>

/// One of the named attributes of an element; a name that is none of them does not compile.
template <const auto &names>
struct KWPlanAttribute
{
    // NOLINTNEXTLINE(google-explicit-constructor): so that the name alone can stand in brackets
    consteval KWPlanAttribute(const char *name)
    {
        while (names.at(index) != name)
            ++index;
    }

    std::size_t index = 0;
};

/// The values of the attributes that an element of a plan file may have; null for those that it has
/// not. `record["title"]` is one of them.
template <const auto &names>
class KWPlanRecord
{
public:
    /// The attributes as the parser hands them over: names and values in turn, up to a null.
    explicit KWPlanRecord(const char *const *attributes)
    {
        for (; *attributes; attributes += 2) {
            for (std::size_t i = 0; i < names.size(); ++i) {
                if (names[i] == *attributes)
                    m_values[i] = KWPlanText::unescaped(attributes[1]);
            }
        }
    }

    const QString &operator[](KWPlanAttribute<names> attribute) const
    {
        return m_values[attribute.index];
    }

private:
    std::array<QString, names.size()> m_values;
};
