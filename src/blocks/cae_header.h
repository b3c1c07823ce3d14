#pragma once

#include "blocks/block.h"

/// [CaeHeader]: the release and project that the analysis belongs to.
namespace qel::cae_header {

inline constexpr char kSection[] = "[CaeHeader]";

inline constexpr KeyInfo kKeys[] = {
    Key<Text>{"Version",
              {"CaeHeader_ReadVersion"},
              {"CaeHeader_WriteVersion"},
              "the version of the suite, or its name",
              {.older = {"SetVersion"}}},
    Key<Text>{"Release",
              {"CaeHeader_ReadRelease"},
              {"CaeHeader_WriteRelease"},
              "the release of the suite",
              {.older = {"SetRelease"}}},
    Key<Text>{"Project",
              {"CaeHeader_ReadProject"},
              {"CaeHeader_WriteProject"},
              "the project that the analysis belongs to, by name or path",
              {.older = {"GetProjectPath", "SetProject"}}},
    Key<Text>{"Engineer",
              {"CaeHeader_ReadEngineer"},
              {"CaeHeader_WriteEngineer"},
              "the name of the engineer in charge",
              {.older = {"SetEngineer"}}},
    Key<Text>{"Parent",
              {"CaeHeader_ReadParent"},
              {"CaeHeader_WriteParent"},
              "the file that this one was made from",
              {.older = {"SetParent"}}},
    Key<Text>{"Type",
              {"CaeHeader_ReadType"},
              {"CaeHeader_WriteType"},
              "the kind of analysis, such as Injection",
              {.older = {"GetCAEType", "SetCAEType"}}},
    Key<Text>{"FileVersion",
              {"CaeHeader_ReadFileVersion"},
              {"CaeHeader_WriteFileVersion"},
              "the version of the file's layout, as text"},
    Key<Integer>{"FileVersion",
                 {"CaeHeader_ReadFileVersion"},
                 {},
                 "the version of the file's layout, as a number",
                 {.older = {"GetFileVersion", "SetFileVersion"}}},
    Key<Integer>{"FileType",
                 {"CaeHeader_ReadFileType"},
                 {"CaeHeader_WriteFileType"},
                 "a code of the kind of process file",
                 {.older = {"GetFileType", "SetFileType"}}},
    Key<Integer>{"SmartSetting",
                 {"CaeHeader_ReadSmartSetting"},
                 {"CaeHeader_WriteSmartSetting"},
                 "a code: how far the front end set the values by itself (smart setting)",
                 {.older = {"GetSmartSetting", "SetSmartSetting"}}},
    Key<Integer>{"SettingMode",
                 {"CaeHeader_ReadSettingMode"},
                 {},
                 "a code: in which mode of the front end the values were set"},
    Key<FirstOfIntegerPair>{
        "ProjectType",
        {"CaeHeader_ReadProjectType"},
        {},
        "the project type: 8 co-injection, 11 two melt entrances; a second number is dropped",
        {.loader = ProcessItem::ProjectType}},
    // Only the loader takes these.
    Key<Integer>{"FlagUNF",
                 {},
                 {},
                 "a flag that goes to the simulator as it stands",
                 {.loader = ProcessItem::FlagUNF}},
    Key<Integer>{"FlagEncapsulationCM",
                 {},
                 {},
                 "a flag of encapsulation that goes to the simulator as it stands",
                 {.loader = ProcessItem::FlagEncapsulationCM}},
};

inline constexpr SectionInfo kInfo{kSection, "CaeHeader",
                                   "the release and project that the analysis belongs to", kKeys};

}  // namespace qel::cae_header

using CQELPROBlockIOCaeHeader = qel::SectionBlock<qel::cae_header::kInfo>;
