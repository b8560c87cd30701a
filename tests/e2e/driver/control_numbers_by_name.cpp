#include "tests/e2e/driver/control_numbers_by_name.h"

#include <map>

#include "app/form1.h"
#include "os/simulated/simulated_machine.h"
#include "ui/control_numbers.h"

namespace qdix::e2e {

namespace {

/// Takes the addresses from a program that is made for the purpose and never started.
class AddressBook {
 public:
  AddressBook() {
    os::SimulatedMachine machine;
    app::Form1 program(machine.GetSystem());
    ui::VisitControls(program.Window(), ui::ControlVisitor::To<&AddressBook::Note>(*this));
  }

  [[nodiscard]] ControlAddress Find(const std::string& name) const {
    const auto found = addresses_.find(name);
    return found == addresses_.end() ? ControlAddress{} : found->second;
  }

 private:
  void Note(ui::Control& control, int number) {
    ControlAddress address{.number = number};
    for (const ui::Control* above = &control; above != nullptr; above = above->Parent()) {
      if (above->GetKind() == ui::Kind::kTabPage)
        address.tab = static_cast<const ui::TabPage*>(above)->Index();
    }
    addresses_[std::string(control.Name())] = address;
  }

  std::map<std::string, ControlAddress> addresses_;
};

}  // namespace

ControlAddress AddressOf(const std::string& name) {
  static const AddressBook book;  // made once: tests ask while the program is at work
  return book.Find(name);
}

}  // namespace qdix::e2e
