#include "os/simulated/simulated_desktop.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::os::simulated {

namespace {

std::string Shown(const char* text) { return text == nullptr ? "any" : text; }

bool Matches(const char* wanted, const std::string& actual) {
  return wanted == nullptr || base::EqualsIgnoringCase(wanted, actual);
}

}  // namespace

std::vector<SimulatedWindows::Window>::iterator SimulatedWindows::Find(WindowHandle window) {
  return std::find_if(windows_.begin(), windows_.end(),
                      [window](const Window& entry) { return entry.handle == window; });
}

WindowHandle SimulatedWindows::FindWindowA(const char* window_class, const char* title) {
  if (log_.RecordAndFail("FindWindowA", Shown(window_class) + ", " + Shown(title))) return 0;
  for (const Window& window : windows_) {
    if (Matches(window_class, window.window_class) && Matches(title, window.title)) return window.handle;
  }
  return 0;
}

WindowHandle SimulatedWindows::FindWindowExA(WindowHandle after, const char* title) {
  if (log_.RecordAndFail("FindWindowExA", Shown(title))) return 0;
  if (after != 0 && Find(after) == windows_.end()) return 0;
  const auto begin = after == 0 ? windows_.begin() : std::next(Find(after));
  const auto found = std::find_if(begin, windows_.end(),
                                  [title](const Window& window) { return Matches(title, window.title); });
  return found == windows_.end() ? 0 : found->handle;
}

WindowHandle SimulatedWindows::GetWindow(WindowHandle window, std::uint32_t relation) {
  if (log_.RecordAndFail("GetWindow", std::to_string(relation))) return 0;
  const auto found = Find(window);
  if (relation != kGwHwndPrev || found == windows_.end() || found == windows_.begin()) return 0;
  return std::prev(found)->handle;
}

std::uint32_t SimulatedWindows::GetWindowThreadProcessId(WindowHandle window) {
  if (log_.RecordAndFail("GetWindowThreadProcessId") || Find(window) == windows_.end()) return 0;
  return static_cast<std::uint32_t>(~window);
}

bool SimulatedWindows::OpenIcon(WindowHandle window) {
  if (log_.RecordAndFail("OpenIcon")) return false;
  const auto found = Find(window);
  if (found == windows_.end()) return false;
  if (std::exchange(found->is_minimised, false)) found->is_shown = true;
  return true;
}

bool SimulatedWindows::ShowWindow(WindowHandle window, int way) {
  if (log_.RecordAndFail("ShowWindow", std::to_string(way))) return false;
  const auto found = Find(window);
  if (found == windows_.end()) return false;
  return std::exchange(found->is_shown, true);
}

bool SimulatedWindows::SetForegroundWindow(WindowHandle window) {
  if (log_.RecordAndFail("SetForegroundWindow") || Find(window) == windows_.end()) return false;
  foreground_ = window;
  return true;
}

bool SimulatedWindows::PostMessageA(WindowHandle window, std::uint32_t message) {
  if (log_.RecordAndFail("PostMessageA", std::to_string(message)) || Find(window) == windows_.end())
    return false;
  if (message == kWmClose) Close(window);
  return true;
}

WindowHandle SimulatedWindows::Open(const std::string& window_class, const std::string& title) {
  windows_.insert(windows_.begin(), {next_handle_, window_class, title});
  return next_handle_++;
}

void SimulatedWindows::Close(WindowHandle window) { windows_.erase(Find(window)); }

void SimulatedWindows::SetTitle(WindowHandle window, const std::string& title) {
  Find(window)->title = title;
}

void SimulatedWindows::Minimise(WindowHandle window) { Find(window)->is_minimised = true; }

bool SimulatedWindows::IsMinimised(WindowHandle window) const {
  return std::any_of(windows_.begin(), windows_.end(),
                     [window](const Window& entry) { return entry.handle == window && entry.is_minimised; });
}

void SimulatedWindows::Hide(WindowHandle window) { Find(window)->is_shown = false; }

bool SimulatedWindows::IsShown(WindowHandle window) const {
  return std::any_of(windows_.begin(), windows_.end(),
                     [window](const Window& entry) { return entry.handle == window && entry.is_shown; });
}

void SimulatedWindows::PlaceDirectlyBehind(WindowHandle window, WindowHandle front) {
  const Window moved = *Find(window);
  windows_.erase(Find(window));
  windows_.insert(std::next(Find(front)), moved);
}

int SimulatedDialogs::MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) {
  if (log_.RecordAndFail("MessageBoxA", text) || ended_) return kIdNone;
  boxes_.push_back({text, title, flags});
  if (while_open_) while_open_();
  if (ended_) return kIdNone;
  if (!answers_.empty()) {
    const int answer = answers_.front();
    answers_.erase(answers_.begin());
    return answer;
  }
  if ((flags & kMbButtons) == kMbYesNoCancel) return kIdYes;
  if ((flags & kMbYesNo) == 0) return kIdOk;
  return (flags & kMbDefaultButton2) != 0 ? kIdNo : kIdYes;
}

bool SimulatedShell::Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) {
  const std::string tip(base::CutAtNul({data.tip.data(), data.tip.size()}));
  if (log_.RecordAndFail("Shell_NotifyIconA", std::to_string(request) + ", " + tip)) return false;
  requests_.push_back({request, data, tip});
  const std::pair icon(data.owner, data.id);
  if (request == kNimAdd) return icons_.insert(icon).second;
  if (request == kNimDelete) return icons_.erase(icon) == 1;
  return icons_.contains(icon);
}

bool SimulatedShell::ShellExecuteA(const char* verb, const std::string& path, int show) {
  const std::string request = std::string(verb) + " " + path + " " + std::to_string(show);
  if (log_.RecordAndFail("ShellExecuteA", request) || !files_.Read(path)) return false;
  opened_files_.push_back(request);
  return true;
}

}  // namespace qdix::os::simulated
