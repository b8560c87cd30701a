#include "tests/e2e/driver/bare_loop.h"

namespace qdix::e2e {

namespace {

constexpr SIZE_T kPageBytes = 4096;

}  // namespace

TouchedBlock::TouchedBlock(SIZE_T bytes)
    : begin_(static_cast<volatile char*>(VirtualAlloc(nullptr, bytes, MEM_COMMIT, PAGE_READWRITE))) {
  if (begin_ == nullptr) return;
  for (SIZE_T at = 0; at < bytes; at += kPageBytes) begin_[at] = 1;
}

TouchedBlock::~TouchedBlock() {
  if (begin_ != nullptr) VirtualFree(const_cast<char*>(begin_), 0, MEM_RELEASE);
}

void Pump(int times) {
  MSG message = {};
  for (int i = 0; i < times; ++i) {
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageA(&message);
  }
}

}  // namespace qdix::e2e
