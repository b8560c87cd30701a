// Compares the resources that a program holds at one moment with those that it holds later.
#pragma once

#include <gtest/gtest.h>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

class HeldResources {
 public:
  explicit HeldResources(const ShippedProgram& program)
      : program_(program), before_(program.Resources()), committed_before_(program.CommittedBytes()) {
    // A kind that could not be counted would never grow.
    EXPECT_GT(before_.windows, 0);
    EXPECT_GT(before_.drawing_objects, 0);
    EXPECT_GT(before_.handles, 0);
    EXPECT_GT(committed_before_, 0U);
  }

  void ExpectNoMoreNow() const {
    ProcessResources now;
    // A refresh that is just drawing holds objects for a moment.
    EXPECT_TRUE(program_.Await([&] {
      now = program_.Resources();
      return now.windows <= before_.windows && now.drawing_objects <= before_.drawing_objects &&
             now.handles <= before_.handles;
    })) << "windows "
        << before_.windows << " to " << now.windows << ", drawing objects " << before_.drawing_objects
        << " to " << now.drawing_objects << ", handles " << before_.handles << " to " << now.handles;
    EXPECT_LE(program_.CommittedBytes(), committed_before_ + kSlackBytes);
  }

 private:
  /// A heap may keep a little of the memory that it once handed out.
  static constexpr std::uint64_t kSlackBytes = 64 * 1024;

  const ShippedProgram& program_;
  const ProcessResources before_;
  const std::uint64_t committed_before_;
};

}  // namespace qdix::e2e
