// The self-test of the run time with this machine's own C library: what it expects is what C++ promises.
#include "runtime/entry.h"

int main() { return QdixMain(nullptr, 0); }
