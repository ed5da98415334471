#pragma once

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace quorvane::cli {

/// Takes the superuser's privileges from the process while it lives, so that permissions count.
class WithoutPrivileges {
public:
    WithoutPrivileges() : before_(::geteuid()) {
        constexpr uid_t nobody = 65534;
        if (before_ == 0) {
            become(nobody);
        }
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
    ~WithoutPrivileges() { become(before_); }

private:
    static void become(uid_t user) {
        if (::seteuid(user) != 0) {
            throw std::system_error(errno, std::generic_category(), "seteuid");
        }
    }

    uid_t before_;
};

}  // namespace quorvane::cli
