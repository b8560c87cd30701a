// Ends of the program that nothing can be done about.
#pragma once

namespace qdix::runtime {

/// The small program itself got no memory: says so without needing any, and ends the process.
[[noreturn]] void EndForLackOfMemory();

/// A mistake of the program's own that the headers detected, such as an index outside a text: ends the
/// process.
[[noreturn]] void EndForInternalError();

}  // namespace qdix::runtime
