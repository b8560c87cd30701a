// Records the calls to the simulated machine and decides which of them fail.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qdix::os::simulated {

class CallLog {
 public:
  /// Records a call that cannot fail.
  void Record(std::string_view name, std::string_view arguments = {}) {
    std::string& call = calls_.emplace_back();
    call.reserve(name.size() + arguments.size() + 2);
    call.append(name).append("(").append(arguments).append(")");
  }

  /// Records a call that can fail. True if the test planned a failure for this one.
  [[nodiscard]] bool RecordAndFail(std::string_view name, std::string_view arguments = {}) {
    Record(name, arguments);
    ++faultable_calls_;
    if (name == fail_next_name_) {
      fail_next_name_.clear();
      return true;
    }
    return faultable_calls_ == fail_number_ || (fail_from_ != 0 && faultable_calls_ >= fail_from_);
  }

  void FailNext(const std::string& name) { fail_next_name_ = name; }
  void FailNumber(int number) { fail_number_ = number; }
  void FailFrom(int number) { fail_from_ = number; }

  /// Empties the record of calls. The count of calls that can fail continues.
  void ClearCalls() { calls_.clear(); }

  /// Records something that a correct program never does.
  void Misuse(const std::string& what) { misuses_.push_back(what); }
  void ClearMisuses() { misuses_.clear(); }

  [[nodiscard]] const std::vector<std::string>& Calls() const { return calls_; }
  [[nodiscard]] const std::vector<std::string>& Misuses() const { return misuses_; }
  [[nodiscard]] int FaultableCalls() const { return faultable_calls_; }

 private:
  std::vector<std::string> calls_;
  std::vector<std::string> misuses_;
  std::string fail_next_name_;
  int faultable_calls_ = 0;
  int fail_number_ = 0;
  int fail_from_ = 0;
};

}  // namespace qdix::os::simulated
