#pragma once

#include "blocks/block.h"

/// [CaeHeader]: the release and project that the analysis belongs to.
namespace qel::cae_header {

inline constexpr char kSection[] = "[CaeHeader]";

inline constexpr Key<Text> kVersion{"Version", {"CaeHeader_ReadVersion"}, {"CaeHeader_WriteVersion"}, "the suite's version"};
inline constexpr Key<Text> kRelease{"Release", {"CaeHeader_ReadRelease"}, {"CaeHeader_WriteRelease"}, "the suite's release"};
inline constexpr Key<Text> kProject{"Project", {"CaeHeader_ReadProject"}, {"CaeHeader_WriteProject"}, "the project"};
inline constexpr Key<Text> kEngineer{"Engineer", {"CaeHeader_ReadEngineer"}, {"CaeHeader_WriteEngineer"}, "the engineer"};
inline constexpr Key<Text> kParent{"Parent", {"CaeHeader_ReadParent"}, {"CaeHeader_WriteParent"}, "the file that this one was made from"};
inline constexpr Key<Text> kType{"Type", {"CaeHeader_ReadType"}, {"CaeHeader_WriteType"}, "the kind of analysis, such as Injection"};
inline constexpr Key<Text> kFileVersion{
    "FileVersion", {"CaeHeader_ReadFileVersion"}, {"CaeHeader_WriteFileVersion"}, "the version of the file's layout, as text"};
inline constexpr Key<Integer> kFileVersionNumber{"FileVersion", {"CaeHeader_ReadFileVersion"}, {}, "the version of the file's layout, as a number"};
inline constexpr Key<Integer> kFileType{"FileType", {"CaeHeader_ReadFileType"}, {"CaeHeader_WriteFileType"}, "the file's type code"};
inline constexpr Key<Integer> kSmartSetting{
    "SmartSetting", {"CaeHeader_ReadSmartSetting"}, {"CaeHeader_WriteSmartSetting"}, "the code of the guided setting"};
inline constexpr Key<Integer> kSettingMode{"SettingMode", {"CaeHeader_ReadSettingMode"}, {}, "the code of the setting mode"};
inline constexpr Key<FirstOfIntegerPair> kProjectType{
    "ProjectType", {"CaeHeader_ReadProjectType"}, {}, "the project type: 8 co-injection, 11 two melt entrances; a second number is dropped"};

// Only the simulator process takes these; no member reads or writes them.
inline constexpr Key<Integer> kFlagUNF{"FlagUNF", {}, {}, "a flag of the simulator"};
inline constexpr Key<Integer> kFlagEncapsulationCM{"FlagEncapsulationCM", {}, {}, "a flag of the simulator: encapsulation"};

inline constexpr const KeyInfo* kKeys[] = {&kVersion,     &kRelease,     &kProject,           &kEngineer,           &kParent,
                                           &kType,        &kFileVersion, &kFileVersionNumber, &kFileType,           &kSmartSetting,
                                           &kSettingMode, &kProjectType, &kFlagUNF,           &kFlagEncapsulationCM};

inline constexpr SectionInfo kInfo{kSection, "the release and project that the analysis belongs to", kKeys, std::size(kKeys)};

}  // namespace qel::cae_header

class CQELPROBlockIOCaeHeader : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOCaeHeader() : CQELPROBlockIOBase(qel::cae_header::kSection) {}
};
