// Windows 95 refuses to delete an object that is selected into a device context, and the object is never
// freed.
#include <map>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

/// The objects that the program has selected into each device context, by type.
using Selections = std::map<HDC, std::map<DWORD, HGDIOBJ>>;

Selections& GetSelections() {
  static Selections selections;
  return selections;
}

void Selected(const Call& call) {
  auto* const object = call.Argument<HGDIOBJ>(2);
  if (call.result != 0) GetSelections()[call.Argument<HDC>(1)][GetObjectType(object)] = object;
}

void CheckDeletion(const Call& call) {
  auto* const deleted = call.Argument<HGDIOBJ>(1);
  for (const auto& [device, objects] : GetSelections()) {
    for (const auto& [type, object] : objects) {
      if (object == deleted) Report(call, Rule::kBalance, "deletes an object that is still selected");
    }
  }
}

}  // namespace

void AddSelectionRules(Watches& watches) {
  watches.After("SelectObject", &Selected);
  watches.Before("DeleteObject", &CheckDeletion);
  watches.Before("DeleteDC", [](Call& call) { GetSelections().erase(call.Argument<HDC>(1)); });
  watches.Before("ReleaseDC", [](Call& call) { GetSelections().erase(call.Argument<HDC>(2)); });
  watches.Before("EndPaint", [](Call& call) { GetSelections().erase(call.Argument<const HDC*>(2)[0]); });
}

}  // namespace qdix::strict95
