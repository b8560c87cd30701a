# Compile options of all our own sources, as interface targets.

# Warnings, all treated as errors.
add_library(qdix_warnings INTERFACE)
target_compile_options(qdix_warnings INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Werror;-Wshadow;\
-Wconversion;-Wnon-virtual-dtor;-Woverloaded-virtual;-Wvla>")

# The target Windows version: structures and names of the first Windows 95. Set as compiler flags, because the
# compiler's own headers choose a later version before a #define could.
add_library(qdix_windows95 INTERFACE)
target_compile_definitions(qdix_windows95 INTERFACE
  WINVER=0x0400 _WIN32_WINNT=0x0400 _WIN32_WINDOWS=0x0400 _WIN32_IE=0x0300 WIN32_LEAN_AND_MEAN)

# The arithmetic of the shipped programs: any processor from the 386 with its 387. The tests under Wine also compile
# the program with these flags. src/runtime/README.md gives the reasons for these flags and for qdix_shipped.
add_library(qdix_arithmetic INTERFACE)
target_compile_options(qdix_arithmetic INTERFACE
  "$<$<COMPILE_LANGUAGE:CXX>:-march=i386;-mfpmath=387;-ffloat-store>")

# Shipped code: no exceptions, no run-time type information.
add_library(qdix_shipped INTERFACE)
target_compile_options(qdix_shipped INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Oz;-flto;-fno-inline-functions-called-once;\
-fno-ipa-icf-functions;-fno-declone-ctor-dtor;-fomit-frame-pointer;-mno-stack-arg-probe;-mno-accumulate-outgoing-args;\
-mpreferred-stack-boundary=2;-mincoming-stack-boundary=3;-fno-exceptions;-fno-rtti;-fno-threadsafe-statics;-fno-use-cxa-atexit;\
-fno-asynchronous-unwind-tables;-ffunction-sections;-fdata-sections;-Walloca;-Wframe-larger-than=3000;-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
target_compile_definitions(qdix_shipped INTERFACE QDIX_WITHOUT_NAMES)
target_link_libraries(qdix_shipped INTERFACE qdix_windows95 qdix_arithmetic)

# qdix_quick_tests is for what the tests run: -O1 nearly halves their time and costs little compile time. The tests
# themselves stay at -O0, because most of their time is the compiler's.
add_library(qdix_sanitizers INTERFACE)
add_library(qdix_quick_tests INTERFACE)
if(QDIX_SANITIZE)
  target_compile_options(qdix_quick_tests INTERFACE -O1)
  target_compile_options(qdix_sanitizers INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # Without position independence a test program of this size starts in half the time.
  target_link_options(qdix_sanitizers INTERFACE -fsanitize=address,undefined -no-pie)
  # Links several times as fast as the default linker.
  find_program(LLD ld.lld)
  if(LLD)
    target_link_options(qdix_sanitizers INTERFACE -fuse-ld=lld)
  endif()
endif()

# Measures code coverage. Compiled without exceptions, like the shipped programs: otherwise calls would have extra branches
# for exceptions.
add_library(qdix_coverage INTERFACE)
if(QDIX_COVERAGE)
  target_compile_options(qdix_coverage INTERFACE --coverage -fno-exceptions)
  target_link_options(qdix_coverage INTERFACE --coverage)
endif()
