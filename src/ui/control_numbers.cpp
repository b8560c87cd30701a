#include "ui/control_numbers.h"

namespace qdix::ui {

namespace {

/// Visits the controls below `container`, numbering them from `number`. Returns the next free number.
int VisitBelow(const Container& container, ControlVisitor visit, int number) {
  for (Control* child : container.Children()) {
    visit(*child, number++);
    if (child->IsContainer()) number = VisitBelow(static_cast<const Container&>(*child), visit, number);
  }
  return number;
}

}  // namespace

void VisitControls(const Container& root, ControlVisitor visit) {
  VisitBelow(root, visit, kFirstControlNumber);
}

int NumberOf(const Container& root, const Control& wanted) {
  int found = 0;
  auto compare = [&wanted, &found](const Control& control, int number) {
    if (&control == &wanted) found = number;
  };
  VisitControls(root, ControlVisitor::Of(compare));
  return found;
}

}  // namespace qdix::ui
