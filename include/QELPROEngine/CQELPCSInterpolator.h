#pragma once

/// @file
/// Coolant tables, and where the current user has theirs.

#include "QELPROEngine/export.h"

struct QELCoolantTables;

/// The properties of coolants, from the tables of a coolant settings file.
///
/// The file is text, a section "[Coolant-%d]" a coolant: "Name", "DataCount" (the number of rows),
/// and the rows "Data-1", "Data-2", ..., each an argument and four properties. The arguments
/// ascend.
///
/// Copies share one set of tables. One object is used by one thread at a time.
class QELPROENGINE_API CQELPCSInterpolator {
 public:
  /// An object without tables: it knows no coolant until a file is loaded.
  CQELPCSInterpolator();
  /// A copy shares the tables.
  CQELPCSInterpolator(const CQELPCSInterpolator& other);
  /// Shares the other's tables, and lets go of its own.
  CQELPCSInterpolator& operator=(const CQELPCSInterpolator& other);
  ~CQELPCSInterpolator();

  /// Takes the tables of a file in the place of those loaded before. False when it cannot be
  /// opened or read to its end; no table is left then.
  bool LoadDataFromFile(const char* path);

  /// The four properties at an argument: linear between two rows, the first or last row's outside
  /// of them, and those of the only row of a table of one.
  ///
  /// The coolant is named by its identifier: up to 2 it is the number in the file, from 6 on it is
  /// that number plus 3; 3, 4 and 5 name none. Of two sections of one number the first counts.
  /// False, the outputs untouched, when no file was loaded or it holds no such coolant with a
  /// positive "DataCount". Where no two neighbouring rows enclose the argument (rows out of order)
  /// a property is 0 and the result true.
  bool InterpolateCoolantProperties(int coolant, double argument, double& p1, double& p2,
                                    double& p3, double& p4);

 private:
  QELCoolantTables* tables_ = nullptr;
};

/// Where the current user's coolant settings file is looked for, whether it exists or not. False
/// when the user has no folder for settings, or when the path and its terminator do not fit `size`.
QELPROENGINE_API bool g_GetCurrentUserPSCFilePath(char* buffer, unsigned int size);
