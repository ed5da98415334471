#pragma once

#include <linux/capability.h>
#include <sys/prctl.h>
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

/// Lets permissions count in a new process, whoever starts it, before a program runs in it. Another
/// user might not reach the program, and the leak sanitizer does not work for one.
inline void giveUpOverridingPermissions() {
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH, 0, 0, 0);
}

}  // namespace quorvane::cli
