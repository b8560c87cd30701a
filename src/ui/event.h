// How handlers are run. One dispatcher serves the whole program.
//
// The contract of events, for every control:
//  - Handlers are bound to a control's public `On...` fields and run through the dispatcher, never directly.
//  - An assignment from code runs the handler inside the assignment, after the value changed, as the user's
//  action does.
//  - The error that a handler returns goes to the dispatcher's reporter, never to the code whose assignment,
//  pump or box ran it.
//  - The error of the assignment itself (a refused value) is returned to the caller of the assignment and
//  runs no handler.
//  - After Stop no handler runs any more.
#pragma once

#include <type_traits>

#include "base/callback.h"
#include "base/result.h"

namespace qdix::ui {

using Handler = base::Callback<base::Status()>;

class EventDispatcher {
 public:
  using ErrorReporter = base::Callback<void(const base::RuntimeError&)>;

  /// Receives what no handler traps. Must be bound before the first event.
  void ReportErrorsTo(ErrorReporter reporter) { reporter_ = reporter; }

  /// Runs a handler with its arguments unless it is unbound or the program has stopped.
  template <class... Bound>
  void Run(const base::Callback<base::Status(Bound...)>& handler, std::type_identity_t<Bound>... arguments) {
    if (stopped_ || !handler) return;
    const base::Status status = handler(arguments...);
    if (!status.Ok()) Report(status.Error());
  }

  /// Hands an error to the reporter; nothing after Stop.
  void Report(const base::RuntimeError& error) {
    if (!stopped_ && reporter_) reporter_(error);
  }

  void Stop() { stopped_ = true; }
  [[nodiscard]] bool Stopped() const { return stopped_; }

 private:
  ErrorReporter reporter_;
  bool stopped_ = false;
};

}  // namespace qdix::ui
