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

struct NameSearch {
  std::string_view name;
  int number = 0;

  void Visit(Control& control, int its_number) {
    if (number == 0 && control.Name() == name) number = its_number;
  }
};

}  // namespace

void VisitControls(const Container& root, ControlVisitor visit) {
  VisitBelow(root, visit, kFirstControlNumber);
}

int NumberOf(const Container& root, std::string_view name) {
  NameSearch search{name};
  VisitControls(root, ControlVisitor::To<&NameSearch::Visit>(search));
  return search.number;
}

}  // namespace qdix::ui
