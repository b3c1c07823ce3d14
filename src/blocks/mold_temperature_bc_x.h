#pragma once

#include "blocks/block.h"
#include "blocks/positional_encoding.h"

/// [MoldTemperatureBC-%d]: a mold temperature boundary condition.
namespace qel::mold_temperature_bc_x {

inline constexpr char kSection[] = "[MoldTemperatureBC-%d]";

/// The section whose lines are addressed by position, "[SURFACE ELEMENT BOUNDARY CONDITION NAME]":
/// lookups find it by its first token.
inline constexpr char kPositionalSection[] = "[SURFACE";

// Every member of the numbered section renames the block for the rest of its session.
inline constexpr Details kRenames{
    .reading =
        "From now on this reader finds no positional line (`MoldTemperatureBCX_ReadBC`, "
        "`MoldTemperatureBCX_ReadBCSetting`): read those first, or through a reader of their own.",
    .writing =
        "From now on this writer begins a new section for positional lines "
        "(`MoldTemperatureBCX_WriteBC`, `MoldTemperatureBCX_WriteBCSetting`): write those first, "
        "or through a writer of their own."};

inline constexpr KeyInfo kKeys[] = {
    Key<Text>{"BCName",
              {"MoldTemperatureBCX_ReadName"},
              {"MoldTemperatureBCX_WriteName"},
              "the name of the boundary condition",
              kRenames},
    Key<Integer>{"BCDisplayType",
                 {"MoldTemperatureBCX_ReadDisplayType"},
                 {"MoldTemperatureBCX_WriteDisplayType"},
                 "a code: how a front end shows the boundary condition",
                 kRenames},
    Key<Integer>{"BCNodeCount",
                 {"MoldTemperatureBCX_ReadNodeCount"},
                 {"MoldTemperatureBCX_WriteNodeCount"},
                 "the number of mesh nodes of the boundary condition",
                 kRenames},
    Key<RealPair>{
        "BC-%d",
        {"MoldTemperatureBCX_ReadBCProfile"},
        {"MoldTemperatureBCX_WriteBCProfile"},
        "a point of the boundary condition's profile: the time, and the temperature, in oC",
        kRenames},
};

inline constexpr SectionInfo kInfo{kSection,
                                   "MoldTemperatureBCX",
                                   "a mold temperature boundary condition",
                                   kKeys,
                                   {"bc", "the condition"}};

inline constexpr KeyInfo kLines[] = {
    Key<PositionalHeader>{"header line",
                          {"MoldTemperatureBCX_ReadBC"},
                          {"MoldTemperatureBCX_WriteBC"},
                          "one for each boundary condition: the number of its setting lines, its "
                          "name, and an integer",
                          {.older = {"GetBCCountName", "SetBCCountName", "GetBCSetting"}}},
    Key<PositionalSetting>{
        "setting line",
        {"MoldTemperatureBCX_ReadBCSetting"},
        {"MoldTemperatureBCX_WriteBCSetting"},
        "after all header lines, one condition after the other: a number, \"=\", and two reals",
        {.older = {"GetBCProfile", "SetBCProfile"}}},
};

inline constexpr SectionInfo kPositionalInfo{
    "[SURFACE ELEMENT BOUNDARY CONDITION NAME]", nullptr,
    "mold temperature boundary conditions, in lines addressed by position", kLines};

}  // namespace qel::mold_temperature_bc_x

/// Serves both forms in which the file keeps mold temperature boundary conditions. It is
/// constructed with the name of the positional section; the first member of the numbered section
/// renames it for the rest of the session, and the positional members find nothing from then on.
/// Callers do their positional work first, or in a session of its own.
class CQELPROBlockIOMoldTemperatureBCX : public CQELPROBlockIOBase {
 public:
  static constexpr const qel::SectionInfo& kInfo = qel::mold_temperature_bc_x::kInfo;

  CQELPROBlockIOMoldTemperatureBCX()
      : CQELPROBlockIOBase(qel::mold_temperature_bc_x::kPositionalSection) {}

  /// Keys of the numbered section.
  template <class Encoding, class... Values>
  qel::Result Read(const char* key, qel::Place place, Values&... values) {
    SetSectionName(qel::mold_temperature_bc_x::kSection);
    return CQELPROBlockIOBase::Read<Encoding>(key, place, values...);
  }
  template <class Encoding, class... Values>
  qel::Result Write(const char* key, qel::Place place, Values... values) {
    SetSectionName(qel::mold_temperature_bc_x::kSection);
    return CQELPROBlockIOBase::Write<Encoding>(key, place, values...);
  }

  /// Header line number `line` of the positional section: how many setting lines the condition has,
  /// its name, an integer. It is found as the document finds a line by its index; a line is written
  /// into the section, or becomes its last one.
  qel::Result ReadBC(int& first, char*& name, int& second, int line);
  qel::Result WriteBC(int first, const char* name, int second, int line);

  /// Setting line `setting` of condition `condition`; the first setting line stands after `offset`
  /// header lines. The header lines of the conditions before it, and a line that is read, stand
  /// before the next section's header, or are not there. A line that is written after the
  /// section's last one becomes its last.
  qel::Result ReadBCSetting(double& a, double& b, int setting, int condition, int offset);
  qel::Result WriteBCSetting(double a, double b, int setting, int condition, int offset);

 private:
  qel::Result FindPosition(int setting, int condition, int offset, int& position);
};
