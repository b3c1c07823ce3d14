#pragma once

#include "blocks/block.h"
#include "blocks/compound_encoding.h"
#include "text/snapshot.h"

/// [GateValve-%d]: a valve gate.
namespace qel::gate_valve_x {

inline constexpr char kSection[] = "[GateValve-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"GCId",
                 {"GeteValveX_ReadValveGateID"},
                 {"GateValveX_WriteGateValveID"},
                 "the identifier of the valve gate"},
    Key<Integer>{"GCSet",
                 {"GateValveX_ReadControlPoint"},
                 {"GateValveX_WriteControlPoint"},
                 "the number of control points of the valve gate",
                 {.older = {"GetValveGateControlNo", "SetValveGateControlNo"},
                  .adapter = {"SetGateValveX_ControlPoint"}}},
    Key<GatePoint>{"GC-%d",
                   {"GateValveX_ReadGateSetting"},
                   {"GateValveX_WriteGateSetting", "GateValveX_WriteGateSettingByValveGateID"},
                   "a control point: the switching value, an integer, the mode (1 to 4), and for "
                   "modes 2 and 3 an "
                   "integer",
                   {.older = {"GetValveGateTimeSwitch", "SetValveGateTimeSwitch",
                              "GetValveGateControlData", "SetValveGateControlData"},
                    .adapter = {"SetGateValveX_GateSetting"},
                    .counted_by = "GCSet"}},
    Key<GatePointShort>{"GC-%d",
                        {"GateValveX_ReadGateSetting"},
                        {"GateValveX_WriteGateSetting", "GateValveX_WriteGateSettingByValveGateID"},
                        "a control point without its last integer",
                        {.counted_by = "GCSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "GateValveX", "a valve gate", kKeys, {"valve", "the valve"}};

}  // namespace qel::gate_valve_x

class CQELPROBlockIOGateValveX : public qel::SectionBlock<qel::gate_valve_x::kInfo> {
 public:
  /// Stores the text of a control point by rewriting the whole file, and raises "GCSet" to the
  /// point's number where it is lower; a valve without "GCSet" has one point. The document's path
  /// is looked at as it stands on disk.
  qel::Result WriteGateSetting(const std::string& text, int point, int valve);
  /// The same for the first valve that bears the identifier, among those that "TotalGateCTL" of
  /// [Summary] says there are. A valve without "GCId" bears 0.
  qel::Result WriteGateSettingByValveGateID(const std::string& text, int point, int id);

 private:
  qel::Result WriteGateSetting(const std::string& text, int point, int valve, qel::Snapshot& file);
};
