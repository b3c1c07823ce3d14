#pragma once

/// One row of the mold bases or mold metals: three thermal values, three mechanical values, and the
/// material's name, which the record does not own.
struct QELPRO_MMM_MECHANICAL {
  double thermal[3];
  double mechanical[3];
  const char* name;
};
