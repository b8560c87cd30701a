// The path of every call: from the entry that the program imports through the rules to the system, and back
// through the rules. Only calls of the main thread are checked; our programs have no other.
#include <array>
#include <cstring>
#include <optional>

#include "tests/strict95/guard/call.h"
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

constexpr std::size_t kMaxArguments = 16;
/// Limit for nested calls: a window procedure runs inside the call that sends it a message.
constexpr std::size_t kMaxDepth = 1024;
/// The last error before each call, and therefore after a call that sets none. Systems differ in which calls
/// set it.
constexpr DWORD kGarbageError = 0xDEAD;

/// A call that has handlers to run after it.
struct Pending {
  Call call;
  Watches::Function* function;
  std::array<std::uint32_t, kMaxArguments> arguments;
};

struct State {
  Watches watches;
  std::size_t error_question = ImportNumber("GetLastError");
  DWORD main_thread = GetCurrentThreadId();
  std::array<Pending, kMaxDepth> pending{};
  std::size_t depth = 0;
};

std::optional<State> state;

}  // namespace

extern "C" {
// Read by the assembly code below.
std::uint32_t guard_refusal = 0;
std::uintptr_t guard_way_back = 0;
void GuardThunk();
void GuardReturn();
extern const FARPROC kGuardRefusals[];
}

// Each entry pushes the index of its function. Below it on the stack are the return address in the program
// and the arguments.
asm(R"(
  .globl _GuardThunk
_GuardThunk:
  leal 4(%esp), %eax
  pushl %eax
  pushl 4(%esp)
  call _GuardEnter
  addl $12, %esp
  jmp *%eax

  .globl _GuardReturn
_GuardReturn:
  pushl %edx
  pushl %eax
  call _GuardLeave
  addl $4, %esp
  popl %edx
  jmp *_guard_way_back
)");

#define REFUSAL(words) "refuse" #words ": movl _guard_refusal, %eax\n\tret $4*" #words "\n"
asm(REFUSAL(0) REFUSAL(1) REFUSAL(2) REFUSAL(3) REFUSAL(4) REFUSAL(5) REFUSAL(6) REFUSAL(7) REFUSAL(8) REFUSAL(9) REFUSAL(10) REFUSAL(11) REFUSAL(
    12) "  .globl _kGuardRefusals\n_kGuardRefusals: .long refuse0, refuse1, refuse2, refuse3, refuse4, "
        "refuse5, "
        "refuse6, refuse7, refuse8, refuse9, refuse10, refuse11, refuse12\n");
#undef REFUSAL

namespace {

/// Returns the code that continues the call: the system function, or a refusal.
void* PassOn(Watches::Function& function, std::uint32_t* frame, const Call& call, FARPROC system) {
  if (call.is_refused) {
    guard_refusal = call.result;
    return reinterpret_cast<void*>(kGuardRefusals[call.import->argument_words]);
  }
  if (!function.after.empty() && state->depth < kMaxDepth) {
    Pending& pending = state->pending[state->depth++];
    pending.call = call;
    pending.function = &function;
    std::memcpy(pending.arguments.data(), frame + 1, call.import->argument_words * sizeof(std::uint32_t));
    pending.call.arguments = pending.arguments.data();
    frame[0] = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&GuardReturn));
  }
  return reinterpret_cast<void*>(system);
}

}  // namespace

/// Returns the address at which the call continues.
extern "C" void* GuardEnter(std::uint32_t index, std::uint32_t* frame) {
  Watches::Function& function = state->watches.At(index);
  if (index != state->error_question) SetLastError(kGarbageError);
  const bool is_watched = !function.before.empty() || !function.after.empty();
  if (!is_watched || GetCurrentThreadId() != state->main_thread) {
    return reinterpret_cast<void*>(system_functions[index]);
  }
  Call call{.import = &kImports[index], .arguments = frame + 1, .caller = frame[0]};
  for (const Handler& handler : function.before) handler(call);
  SetLastError(kGarbageError);
  return PassOn(function, frame, call, system_functions[index]);
}

extern "C" std::uint32_t GuardLeave(std::uint32_t result) {
  const DWORD error = GetLastError();
  // Handlers cannot overwrite this entry: the guard does not see the calls they make.
  Pending& pending = state->pending[--state->depth];
  pending.call.result = result;
  for (const Handler& handler : pending.function->after) handler(pending.call);
  guard_way_back = pending.call.caller;
  SetLastError(error);
  return pending.call.result;
}

namespace {

/// Loads the libraries that the program would have loaded itself, and finds the addresses of its imports. The
/// other functions have no address until the program looks them up.
void FindSystemFunctions() {
  auto* const image = reinterpret_cast<const char*>(GetModuleHandleA(nullptr));
  const auto& header = *reinterpret_cast<const IMAGE_NT_HEADERS32*>(
      image + reinterpret_cast<const IMAGE_DOS_HEADER*>(image)->e_lfanew);
  const IMAGE_DATA_DIRECTORY& table = header.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(image + table.VirtualAddress);
  for (; library->Name != 0; ++library) {
    const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA32*>(image + library->OriginalFirstThunk);
    for (; name->u1.AddressOfData != 0; ++name) {
      const char* const function = image + name->u1.AddressOfData + sizeof(WORD);
      const std::size_t index = ImportNumber(function);
      if (index == kImportCount) continue;
      system_functions[index] = GetProcAddress(LoadLibraryA(kImports[index].library), function);
    }
  }
}

}  // namespace

}  // namespace qdix::strict95

BOOL WINAPI DllMain(HINSTANCE guard, DWORD reason, void* /*reserved*/) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  qdix::strict95::state.emplace();
  qdix::strict95::FindSystemFunctions();
  qdix::strict95::AddAllRules(qdix::strict95::state->watches, guard);
  return TRUE;
}
