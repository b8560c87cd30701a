// Fatal exits: for failures from which the program cannot recover.
#pragma once

namespace qdix::runtime {

/// For use when an allocation of the program itself failed: shows a message that needs no allocation and ends
/// the process.
[[noreturn]] void EndForLackOfMemory();

/// For an error in the program itself that the standard headers detected, such as an index outside a string:
/// ends the process.
[[noreturn]] void EndForInternalError();

}  // namespace qdix::runtime
