// The mathematical functions that the program uses, for the 387.

extern "C" double floor(double value) {
  constexpr unsigned short kRoundingBits = 0x0C00;
  constexpr unsigned short kRoundDown = 0x0400;
  unsigned short before = 0;
  asm volatile("fnstcw %0" : "=m"(before));
  const auto down = static_cast<unsigned short>((before & ~kRoundingBits) | kRoundDown);
  asm volatile("fldcw %0" ::"m"(down));
  asm volatile("frndint" : "+t"(value));
  asm volatile("fldcw %0" ::"m"(before));
  return value;
}
