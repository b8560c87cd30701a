// The result of one check.
#pragma once

#include <string>
#include <utility>

namespace qdix::self_test {

struct Outcome {
  bool is_ok = true;
  /// What failed. For a check that passed, additional information or nothing.
  std::string remark;

  [[nodiscard]] static Outcome Ok(std::string remark = {}) { return {true, std::move(remark)}; }
  [[nodiscard]] static Outcome Failed(std::string what) { return {false, std::move(what)}; }
  /// Returns a failure with this text unless `is_so`.
  [[nodiscard]] static Outcome Expect(bool is_so, const char* otherwise) {
    return is_so ? Ok() : Failed(otherwise);
  }
};

}  // namespace qdix::self_test
