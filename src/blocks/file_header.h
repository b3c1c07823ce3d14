#pragma once

#include "blocks/block.h"

/// [FileHeader]: what the file is, who wrote it and when.
namespace qel::file_header {

inline constexpr char kSection[] = "[FileHeader]";

inline constexpr KeyInfo kKeys[] = {
    Key<Text>{"Name",
              {"FileHeader_ReadName"},
              {"FileHeader_WriteName"},
              "the name of the file",
              {.older = {"GetFileName", "SetFileName"}}},
    Key<Text>{"Type",
              {"FileHeader_ReadType"},
              {"FileHeader_WriteType"},
              "the file's type, \"PRO\"",
              {.older = {"SetType"}}},
    Key<Text>{"Date",
              {"FileHeader_ReadDate"},
              {"FileHeader_WriteDate", "FileHeader_WriteDate"},
              "the date of the last change, as \"2026/11/15 09:05:07\"",
              {.older = {"GetFileDate", "SetFileDate"}}},
    Key<Text>{"CreateBy",
              {"FileHeader_ReadCreateBy"},
              {"FileHeader_WriteCreateBy"},
              "the program that wrote the file",
              {.older = {"SetCreateBy"}}},
    Key<Text>{"Remark",
              {"FileHeader_ReadRemark"},
              {"FileHeader_WriteRemark"},
              "a remark about the file",
              {.older = {"SetRemark"}}},
};

inline constexpr SectionInfo kInfo{kSection, "FileHeader",
                                   "what the file is, who wrote it and when", kKeys};

}  // namespace qel::file_header

class CQELPROBlockIOFileHeader : public qel::SectionBlock<qel::file_header::kInfo> {
 public:
  /// Stamps the local date and time.
  qel::Result WriteDate();
};
