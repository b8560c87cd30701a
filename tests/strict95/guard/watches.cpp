#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/strict95/guard/call.h"

namespace qdix::strict95 {

Watches::Watches() : functions_(kImportCount) {}

std::size_t ImportNumber(std::string_view name) {
  const Import* const end = kImports + kImportCount;
  return static_cast<std::size_t>(
      std::find_if(kImports, end, [name](const Import& one) { return name == one.name; }) - kImports);
}

Watches::Function& Watches::Checked(std::string_view name) {
  const std::size_t number = ImportNumber(name);
  if (number < kImportCount) return functions_[number];
  const bool is_known =
      std::any_of(kExports, kExports + kExportCount, [name](const Export& one) { return name == one.name; });
  if (!is_known) {
    std::fprintf(stderr, "guard: a rule names %s, which no Windows has\n", std::string(name).c_str());
    std::abort();
  }
  return unowned_;
}

void Watches::Before(std::string_view function, Handler handler) {
  Checked(function).before.push_back(std::move(handler));
}

void Watches::After(std::string_view function, Handler handler) {
  Checked(function).after.push_back(std::move(handler));
}

}  // namespace qdix::strict95
