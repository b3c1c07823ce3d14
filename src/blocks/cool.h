#pragma once

#include "blocks/block.h"

/// [Cool]: cycle times, temperatures and the kind of cooling.
namespace qel::cool {

inline constexpr char kSection[] = "[Cool]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"CoolTime",
              {"Cool_ReadCoolTime"},
              {"Cool_WriteCoolTime"},
              "the cooling time, in sec",
              {.older = {"GetCoolTime", "SetCoolTime"}}},
    Key<Real>{"OpenTime",
              {"Cool_ReadMoldOpenTime"},
              {"Cool_WriteMoldOpenTime"},
              "how long the mold is open between two shots, in sec",
              {.older = {"GetOpenTime", "SetOpenTime"}}},
    Key<Real>{"EjectTemp",
              {"Cool_ReadEjectTemperature"},
              {"Cool_WriteEjectTemperature"},
              "the temperature at which the part is ejected, in oC",
              {.older = {"GetEjectTemperature", "SetEjectTemperature"}}},
    Key<Real>{"AirTemp",
              {"Cool_ReadAirTemperature"},
              {"Cool_WriteAirTemperature"},
              "the temperature of the air around the mold, in oC",
              {.older = {"GetAirTemperature", "SetAirTemperature"}}},
    Key<Real>{"InitialMoldbaseTemperature",
              {"Cool_ReadInitMoldTemperature"},
              {"Cool_WriteInitMoldTemperature"},
              "the mold base's initial temperature, in oC",
              {.older = {"GetInitMoldTemperature"}}},
    Key<Real>{"CoolantTemp",
              {"Cool_ReadCoolantTemperature"},
              {"Cool_WriteCoolantTemperature"},
              "the coolant temperature, in oC",
              {.older = {"GetCoolantTemperature", "SetCoolantTemperature"}}},
    Key<Real>{"CoolantFR",
              {"Cool_ReadCoolantFlowRate"},
              {"Cool_WriteCoolantFlowRate"},
              "the coolant flow rate, in cc/sec",
              {.older = {"GetCoolantFlowRate", "SetCoolantFlowRate"}}},
    Key<Integer>{"CoolingType",
                 {"Cool_ReadCoolingType"},
                 {"Cool_WriteCoolingType"},
                 "a code of the kind of cooling",
                 {.older = {"GetCoolingType"}}},
    Key<Integer>{"ControlType",
                 {"Cool_ReadControlType"},
                 {},
                 "what cooling channels are controlled by: 1 pressure, otherwise flow rate"},
    // Only the older object serves this one.
    Key<Integer>{"AutoSetCoolTime",
                 {},
                 {},
                 "1 where the cooling time is set automatically, else 0",
                 {.older = {"GetAutoSetCoolTime", "SetAutoSetCoolTime"}}},
};

inline constexpr SectionInfo kInfo{kSection, "Cool",
                                   "cycle times, temperatures and the kind of cooling", kKeys};

}  // namespace qel::cool

using CQELPROBlockIOCool = qel::SectionBlock<qel::cool::kInfo>;
