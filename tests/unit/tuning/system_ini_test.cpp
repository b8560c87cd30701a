// Entries of system.ini, its backup, and the record of its entries before the first change.
#include "tuning/system_ini.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "os/simulated/simulated_machine.h"
#include "tuning/first_save.h"

namespace qdix::tests {
namespace {

constexpr const char* kIniPath = "C:\\WINDOWS\\system.ini";
constexpr const char* kBackupPath = "C:\\WINDOWS\\system.qdix";
constexpr const char* kIni =
    "[boot]\r\nshell=Explorer.exe\r\n\r\n[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=65536\r\n\r\n"
    "[vcache]\r\nMinFileCache=2048\r\nmaxfilecache= 8192 KB\r\nChunkSize=512\r\n";

class SystemIni : public testing::Test {
 protected:
  SystemIni() { machine.WriteFile(kIniPath, kIni); }
  [[nodiscard]] std::string Content() const { return machine.ReadFile(kIniPath).value_or("none"); }

  os::SimulatedMachine machine;
  tuning::SystemIni ini{machine.GetSystem().profile_files, machine.GetSystem().files};
};

TEST_F(SystemIni, EntryIsReadAsItsLeadingNumber) {
  EXPECT_EQ(ini.ReadIniValue("vcache", "MinFileCache"), 2048);
  EXPECT_EQ(ini.ReadIniValue("vcache", "MaxFileCache"), 8192);
  EXPECT_EQ(ini.ReadIniValue("vcache", "chunksize"), 512);
  EXPECT_EQ(ini.ReadIniValue("vcache", "Missing"), 0);
  EXPECT_EQ(ini.ReadIniValue("386Enh", "PagingDrive"), 0);
}

TEST_F(SystemIni, TextComesWithTheNumberOfCharactersCopied) {
  const tuning::SystemIni::Entry drive = ini.ReadIniText("386Enh", "PagingDrive");
  EXPECT_EQ(drive.text, "D:");
  EXPECT_EQ(drive.copied, 2U);
  const tuning::SystemIni::Entry missing = ini.ReadIniText("386Enh", "Missing");
  EXPECT_EQ(missing.text, "0");
  EXPECT_EQ(missing.copied, 1U);
}

TEST_F(SystemIni, EntriesOf254AndMoreCharactersGive254) {
  for (const std::size_t length :
       {std::size_t{254}, std::size_t{255}, std::size_t{256}, std::size_t{70000}}) {
    machine.WriteFile(kIniPath, "[vcache]\r\nX=" + std::string(length, '7') + "\r\n");
    const tuning::SystemIni::Entry entry = ini.ReadIniText("vcache", "X");
    EXPECT_EQ(entry.copied, 254U);
    EXPECT_EQ(entry.text, std::string(254, '7'));
  }
}

TEST_F(SystemIni, WriteReplacesOnlyTheValue) {
  ini.WriteIniValue("vcache", "minfilecache", 1024, "System.ini");
  EXPECT_EQ(
      Content(),
      "[boot]\r\nshell=Explorer.exe\r\n\r\n[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=65536\r\n\r\n"
      "[vcache]\r\nMinFileCache=1024\r\nmaxfilecache= 8192 KB\r\nChunkSize=512\r\n");
  EXPECT_EQ(machine.Calls().back(), "WritePrivateProfileStringA(System.ini [vcache] minfilecache 1024)");
}

TEST_F(SystemIni, DeleteRemovesOnlyTheLine) {
  ini.DeleteIniValue("vcache", "chunksize", "system.ini");
  EXPECT_EQ(
      Content(),
      "[boot]\r\nshell=Explorer.exe\r\n\r\n[386Enh]\r\nPagingDrive=D:\r\nMinPagingFileSize=65536\r\n\r\n"
      "[vcache]\r\nMinFileCache=2048\r\nmaxfilecache= 8192 KB\r\n");
}

TEST_F(SystemIni, RefusedWriteLeavesTheFileSilently) {
  machine.ProtectFile(kIniPath);
  ini.WriteIniValue("vcache", "ChunkSize", 4096, "system.ini");
  ini.DeleteIniValue("vcache", "ChunkSize", "system.ini");
  EXPECT_EQ(Content(), kIni);
}

TEST_F(SystemIni, BackupHasTheSameBytesAndReplacesAnEarlierOne) {
  machine.WriteFile(kBackupPath, "old");
  ini.BackupSystemINI();
  EXPECT_EQ(machine.ReadFile(kBackupPath), kIni);
  EXPECT_EQ(machine.Calls().back(), "CopyFileA(C:\\WINDOWS\\system.ini, C:\\WINDOWS\\system.qdix)");
}

TEST_F(SystemIni, RootAsWindowsDirectoryGetsNoSecondSeparator) {
  machine.SetWindowsDirectory("E:\\");
  machine.WriteFile("E:\\system.ini", "x");
  ini.BackupSystemINI();
  EXPECT_EQ(machine.ReadFile("E:\\system.qdix"), "x");
}

TEST_F(SystemIni, FailedBackupIsSilent) {
  machine.FailNextCall("CopyFileA");
  ini.BackupSystemINI();
  EXPECT_EQ(machine.ReadFile(kBackupPath), std::nullopt);
  machine.SetWindowsDirectory("C:\\" + std::string(300, 'w'));
  ini.BackupSystemINI();
  EXPECT_EQ(machine.ReadFile(kBackupPath), std::nullopt);
}

class FirstSave : public SystemIni {
 protected:
  using Texts = std::map<std::string, std::string>;
  [[nodiscard]] Texts Record() const {
    return machine.RegistryTexts(os::kHkeyLocalMachine, "SOFTWARE\\QDIX");
  }
  tuning::FirstSave first_save{machine.GetSystem(), ini};
};

TEST_F(FirstSave, TakesBackupAndRecord) {
  machine.SetRegistryValue(os::kHkeyLocalMachine,
                           "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates", "", "Desktop");
  first_save.CheckFirstSave();
  EXPECT_EQ(machine.ReadFile(kBackupPath), kIni);
  EXPECT_EQ(Record(), (Texts{{"FirstSave", "1"},
                             {"OldMinCache", "2048"},
                             {"OldMaxCache", "8192"},
                             {"OldChunk", "512"},
                             {"OldFileCache", "Desktop"},
                             {"OldPagingDrive", "D:"},
                             {"OldMinPagingFileSize", "65536"}}));
  EXPECT_EQ(machine.WrittenValueNames(),
            (std::vector<std::string>{"FirstSave", "OldMinCache", "OldMaxCache", "OldChunk", "OldFileCache",
                                      "OldPagingDrive", "OldMinPagingFileSize"}));
  EXPECT_EQ(machine.OpenKeyCount(), 0);
}

TEST_F(FirstSave, RecordIsOnTheDiskAtTheEnd) {
  first_save.CheckFirstSave();
  const auto& calls = machine.Calls();
  const auto flush = std::find(calls.begin(), calls.end(), "RegFlushKey(HKLM\\SOFTWARE\\QDIX)");
  ASSERT_NE(flush, calls.end());
  EXPECT_EQ(std::count_if(flush, calls.end(), [](const auto& call) { return call.starts_with("RegSet"); }),
            0);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), *flush), 1);
  EXPECT_EQ(machine.OpenKeyCount(), 0);
}

TEST_F(FirstSave, CopyOnAFullDiskLeavesAPartialFile) {
  machine.LimitFreeBytes(10);
  first_save.CheckFirstSave();
  EXPECT_EQ(machine.ReadFile(kBackupPath), std::string(kIni).substr(0, 10));
  EXPECT_EQ(machine.ReadFile(kIniPath), kIni);
}

TEST_F(FirstSave, SecondCallChangesNothingAndCopiesNothing) {
  first_save.CheckFirstSave();
  machine.WriteFile(kIniPath, "[vcache]\r\nMinFileCache=1\r\n");
  const auto record = Record();
  first_save.CheckFirstSave();
  EXPECT_EQ(Record(), record);
  EXPECT_EQ(machine.ReadFile(kBackupPath), kIni);
}

TEST_F(FirstSave, MissingCacheSectionRecordsZeros) {
  machine.WriteFile(kIniPath, "[boot]\r\n");
  first_save.CheckFirstSave();
  EXPECT_EQ(Record(), (Texts{{"FirstSave", "1"},
                             {"OldMinCache", "0"},
                             {"OldMaxCache", "0"},
                             {"OldChunk", "0"},
                             {"OldFileCache", ""}}));
}

TEST_F(FirstSave, PagingEntryOfOneCharacterIsNotRecordedAndAnEmptyOneIs) {
  machine.WriteFile(kIniPath, "[386Enh]\r\nPagingDrive=D\r\nMinPagingFileSize=\r\nMaxPagingFileSize=7\r\n");
  first_save.CheckFirstSave();
  EXPECT_FALSE(Record().contains("OldPagingDrive"));
  EXPECT_EQ(Record().at("OldMinPagingFileSize"), "");
  EXPECT_FALSE(Record().contains("OldMaxPagingFileSize"));
}

TEST_F(FirstSave, EveryFailedCallIsIgnoredAndNotRetried) {
  first_save.CheckFirstSave();
  const int calls = machine.FaultableCallCount();
  for (int call = 1; call <= calls; ++call) {
    os::SimulatedMachine other;
    other.WriteFile(kIniPath, kIni);
    other.FailCallNumber(call);
    tuning::SystemIni its_ini(other.GetSystem().profile_files, other.GetSystem().files);
    tuning::FirstSave(other.GetSystem(), its_ini).CheckFirstSave();
    EXPECT_EQ(other.ReadFile(kIniPath), kIni) << call;
    EXPECT_EQ(other.OpenKeyCount(), 0) << call;
    EXPECT_TRUE(other.Boxes().empty()) << call;
  }
}

}  // namespace
}  // namespace qdix::tests
