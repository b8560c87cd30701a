// Memory functions that the compiler calls by name, and new and delete on the process heap.
#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <new>

#include "runtime/fatal.h"

extern "C" {

void* memcpy(void* target, const void* source, std::size_t count) {
  void* const result = target;
  asm volatile("rep movsb" : "+D"(target), "+S"(source), "+c"(count) : : "memory");
  return result;
}

void* memmove(void* target, const void* source, std::size_t count) {
  auto* to = static_cast<std::uint8_t*>(target);
  const auto* from = static_cast<const std::uint8_t*>(source);
  if (to <= from || to >= from + count) return memcpy(target, source, count);
  while (count-- != 0) to[count] = from[count];
  return target;
}

void* memset(void* target, int value, std::size_t count) {
  void* const result = target;
  asm volatile("rep stosb" : "+D"(target), "+c"(count) : "a"(value) : "memory");
  return result;
}

int memcmp(const void* left, const void* right, std::size_t count) {
  const auto* a = static_cast<const std::uint8_t*>(left);
  const auto* b = static_cast<const std::uint8_t*>(right);
  for (std::size_t i = 0; i < count; ++i) {
    if (a[i] != b[i]) return a[i] < b[i] ? -1 : 1;
  }
  return 0;
}

void* memchr(const void* text, int wanted, std::size_t count) {
  const auto* bytes = static_cast<const std::uint8_t*>(text);
  for (std::size_t i = 0; i < count; ++i) {
    if (bytes[i] == static_cast<std::uint8_t>(wanted)) return const_cast<std::uint8_t*>(bytes + i);
  }
  return nullptr;
}

std::size_t strlen(const char* text) {
  std::size_t length = 0;
  while (text[length] != '\0') ++length;
  return length;
}

}  // extern "C"

void* operator new(std::size_t bytes) {
  void* const block = HeapAlloc(GetProcessHeap(), 0, bytes);
  if (block == nullptr) qdix::runtime::EndForLackOfMemory();
  return block;
}

void* operator new[](std::size_t bytes) { return operator new(bytes); }

void operator delete(void* block) noexcept {
  if (block != nullptr) HeapFree(GetProcessHeap(), 0, block);
}

void operator delete(void* block, std::size_t /*bytes*/) noexcept { operator delete(block); }
void operator delete[](void* block) noexcept { operator delete(block); }
void operator delete[](void* block, std::size_t /*bytes*/) noexcept { operator delete(block); }
