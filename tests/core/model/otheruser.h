#pragma once

#include <cstdlib>
#include <sys/stat.h>
#include <vector>

#include <grp.h>
#include <unistd.h>

/// While it lives, files are opened and made by a user who is not root, and a member of a group.
/// Somebody who is not root stays who they are.
class OtherUser
{
public:
    OtherUser(uid_t user, gid_t group)
    {
        if (::geteuid() != 0)
            return;
        m_groups.resize(std::size_t(::getgroups(0, nullptr)));
        ::getgroups(int(m_groups.size()), m_groups.data());
        m_isOther =
            ::setgroups(1, &group) == 0 && ::setegid(gid_t(user)) == 0 && ::seteuid(user) == 0;
    }
    OtherUser(const OtherUser &) = delete;
    OtherUser &operator=(const OtherUser &) = delete;
    ~OtherUser()
    {
        if (m_isOther && (::seteuid(0) != 0 || ::setegid(0) != 0 ||
                          ::setgroups(m_groups.size(), m_groups.data()) != 0))
            std::abort();
    }

private:
    std::vector<gid_t> m_groups;
    bool m_isOther = false;
};
