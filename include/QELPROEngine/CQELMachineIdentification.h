#pragma once

#include "QELPROEngine/export.h"

struct QELMachineRecord;

/// The injection molding machines of a machine bank, for pick lists: which makers it lists, and
/// which grades each of them has.
///
/// A bank is text. After a line with "[Header]" a line with "Version" gives its version, which
/// must be 7007; after a line with "Database]" each line of at least 22 fields between commas that
/// begins with the number 1 is a machine: its second field is the maker, its third the grade. A
/// line with "[EOF]" ends the bank.
///
/// Copies share one bank. One object is used by one thread at a time.
class QELPROENGINE_API CQELMachineIdentification {
 public:
  /// An object without a bank: it lists no maker until one is loaded.
  CQELMachineIdentification();
  /// A copy shares the bank.
  CQELMachineIdentification(const CQELMachineIdentification& other);
  /// Shares the other's bank, and lets go of its own.
  CQELMachineIdentification& operator=(const CQELMachineIdentification& other);
  ~CQELMachineIdentification();

  /// The bank that `LoadFileData` reads; the text is copied. A null path changes nothing.
  void SetMachineUserBankPath(const char* path);
  /// The same by a wide path. Of the two kinds the one that was set last counts.
  void SetMachineUserBankPath(const wchar_t* path);
  /// Kept, and used by nothing.
  void SetIdentificationPath(const char* path);
  /// Kept, and used by nothing.
  void SetIdentificationPath(const wchar_t* path);

  /// Forgets the machines and reads the bank. False when no path is set, when the file cannot be
  /// opened or read to its end (no machine is left then), or when a line with "TotalNo" stands
  /// after the header (the machines before it stay). A bank of another version loads, and holds no
  /// machine.
  bool LoadFileData();

  /// How many makers the bank lists; 0 before it was loaded.
  int GetMakerCount();
  /// The maker at a position from 0, in the order of the makers' bytes. At most `size` characters
  /// are copied: no terminator is added when the name fills the buffer. False out of range, for a
  /// null buffer, or for a size of 0.
  bool GetMaker(int index, char* buffer, unsigned int size);
  /// How many grades a maker has, repeats included; 0 for an unknown maker, or null.
  int GetGradeCount(const char* maker);
  /// The grade at a position from 0, in the order of the file, copied as `GetMaker` does. False for
  /// an unknown maker, too.
  bool GetGrade(const char* maker, int index, char* buffer, unsigned int size);

  /// All makers, in order. The array and its texts belong to the object: they are valid until the
  /// next `GetAllMaker`, `GetAllGrade` or `LoadFileData`. False when there is none.
  bool GetAllMaker(const char*** makers, int* count);
  /// All grades of a maker, in the order of the file, repeats included, valid as those of
  /// `GetAllMaker` are. False for an unknown maker.
  bool GetAllGrade(const char* maker, const char*** grades, int* count);

  /// Always false.
  bool HasMachineIdentification(const char* maker, const char* grade, const char* third);
  /// Always false; nothing is handed out.
  bool GetALLIdentity(const char* first, const char* second, const char*** texts, int* count);

 private:
  QELMachineRecord* record_;
};
