#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

/// Another user's rights for a part of a test that an administrator runs; nothing for everybody else.
class OtherUser {
public:
    explicit OtherUser(unsigned user = 65534) : administrator(geteuid() == 0) {
        if (administrator) {
            EXPECT_EQ(setegid(user), 0);
            EXPECT_EQ(seteuid(user), 0);
        }
    }
    ~OtherUser() {
        if (administrator) {
            EXPECT_EQ(seteuid(0), 0);
            EXPECT_EQ(setegid(0), 0);
        }
    }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

private:
    bool administrator;
};
