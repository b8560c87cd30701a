// How handlers run. One dispatcher serves the whole program.
//
// The contract of events, for every control:
//  - Handlers are bound to a control's public `On...` fields and run only through the dispatcher.
//  - A handler runs after its value has changed, whether the user or an assignment from code changed it.
//  - An assignment returns after its handler.
//  - A handler's error goes to the reporter, never to the code whose assignment, pump or box ran the handler.
//  - An assignment that refuses a value returns the error to its caller and runs no handler.
//  - No handler runs after Stop.
#pragma once

#include <type_traits>

#include "base/callback.h"
#include "base/result.h"

namespace qdix::ui {

using Handler = base::Callback<base::Status()>;

class EventDispatcher {
 public:
  using ErrorReporter = base::Callback<void(const base::RuntimeError&)>;

  /// Sets the receiver of errors that no handler traps. Must be called before the first event.
  void ReportErrorsTo(ErrorReporter reporter) { reporter_ = reporter; }

  /// Runs a handler with its arguments, unless it is unbound or the program has stopped.
  template <class... Bound>
  void Run(const base::Callback<base::Status(Bound...)>& handler, std::type_identity_t<Bound>... arguments) {
    if (stopped_ || !handler) return;
    const base::Status status = handler(arguments...);
    if (!status.Ok()) Report(status.Error());
  }

  /// Passes an error to the reporter. Does nothing after Stop.
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
