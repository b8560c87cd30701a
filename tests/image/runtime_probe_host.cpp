// Runs the runtime probe with the host's own C library, which shows that its expectations are what C++
// guarantees.
#include "runtime/entry.h"

int main() { return QdixMain(nullptr, 0); }
