// Numbers of the program's resources, shared by the resource compiler and the code.
#pragma once

#define QDIX_SELF_TEST_ICON 1
#define QDIX_SELF_TEST_TOPICS 3

#ifndef RC_INVOKED
namespace qdix::self_test::win32 {
inline constexpr int kSelfTestIcon = QDIX_SELF_TEST_ICON;
inline constexpr int kSelfTestTopics = QDIX_SELF_TEST_TOPICS;
}  // namespace qdix::self_test::win32
#endif
