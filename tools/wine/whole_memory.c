// Linked in front of the C library of an emulated Wine: tells how much memory the machine has. The emulator answers the
// system call for it with the lower 32 bits of each number of bytes, from which Wine would work out nonsense.

// As Linux has it for 32-bit programs.
struct sysinfo {
  long uptime;
  unsigned long loads[3];
  // In units of mem_unit bytes.
  unsigned long totalram, freeram, sharedram, bufferram, totalswap, freeswap;
  unsigned short procs, pad;
  unsigned long totalhigh, freehigh;
  unsigned int mem_unit;
  char reserved[8];
};

enum { kSysinfoCall = 116, kReadOnly = 0, kKilobyte = 1024 };

int open(const char* path, int flags, ...);
long read(int file, void* buffer, unsigned long count);
int close(int file);
long syscall(long number, ...);

// Kilobytes, as /proc/meminfo begins: "MemTotal:       24683620 kB"; 0 where it does not.
static unsigned long kilobytes_of_machine(void) {
  char text[64];
  unsigned long kilobytes = 0;
  const int file = open("/proc/meminfo", kReadOnly);
  if (file < 0) return 0;
  const long count = read(file, text, sizeof text);
  close(file);
  for (long i = 0; i < count && text[i] != '\n'; ++i) {
    if (text[i] >= '0' && text[i] <= '9') kilobytes = kilobytes * 10 + (unsigned long)(text[i] - '0');
  }
  return kilobytes;
}

int sysinfo(struct sysinfo* info) {
  const int result = (int)syscall(kSysinfoCall, info);
  const unsigned long kilobytes = kilobytes_of_machine();
  if (result != 0 || kilobytes == 0) return result;
  info->mem_unit = kKilobyte;
  info->totalram = kilobytes;
  return 0;
}
