// Control arrays: elements that share a name and a handler. The handler receives the number of the element.
#pragma once

#include <array>

#include "ui/event.h"

namespace qdix::ui {

/// The handlers of the elements. The array's own handler receives the element's number, counting from 0.
template <int kCount>
class ElementHandlers {
 public:
  using ArrayHandler = base::Callback<base::Status(int)>;

  explicit ElementHandlers(ArrayHandler handler) : handler_(handler) {
    for (int index = 0; index < kCount; ++index) elements_[static_cast<std::size_t>(index)] = {this, index};
  }
  ElementHandlers(const ElementHandlers&) = delete;
  ElementHandlers& operator=(const ElementHandlers&) = delete;
  ~ElementHandlers() = default;

  /// Returns the handler to bind to an element.
  [[nodiscard]] Handler Of(int index) {
    return Handler::To<&Element::Run>(elements_[static_cast<std::size_t>(index)]);
  }

 private:
  struct Element {
    ElementHandlers* array;
    int index;

    base::Status Run() { return array->handler_(index); }
  };

  ArrayHandler handler_;
  std::array<Element, kCount> elements_;
};

}  // namespace qdix::ui
