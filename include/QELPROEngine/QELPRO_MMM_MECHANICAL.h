#pragma once

/// One row of the mold bases or mold metals: three thermal values, three mechanical values, and the
/// material's name, which the record does not own.
struct QELPRO_MMM_MECHANICAL {
  double thermal[3];     ///< The three reals before the name, as they stand in the line.
  double mechanical[3];  ///< The three reals after it.
  const char* name;      ///< The material's name; whoever made the record keeps the text.
};
