#pragma once

#include "blocks/block.h"

/// [GasF-%d]: gas-assisted filling at a gas inlet.
namespace qel::gas_f_x {

inline constexpr char kSection[] = "[GasF-%d]";

inline constexpr KeyInfo kKeys[] = {
    Key<Real>{"GasTime",
              {"GasFX_ReadGasTime"},
              {"GasFX_WriteGasTime"},
              "how long gas is injected, in sec",
              {.older = {"GetGasTime", "SetGasTime"}}},
    Key<Real>{"GasPres",
              {"GasFX_ReadGasPressure"},
              {"GasFX_WriteGasPressure"},
              "the pressure of the gas, in MPa",
              {.older = {"GetGasPressure", "SetGasPressure"}}},
    Key<Real>{"GasSwch",
              {"GasFX_ReadGasSwitch"},
              {"GasFX_WriteGasSwitch"},
              "the switch value at which the injection of gas begins",
              {.older = {"GetGasSwitch", "SetGasSwitch"}}},
    Key<Real>{"DelayTime",
              {"GasFX_ReadDelayTime"},
              {"GasFX_WriteDelayTime"},
              "how long the injection of gas waits, in sec",
              {.older = {"GetGasDelayTime", "SetGasDelayTime"}}},
    Key<Integer>{"GRDisplayType",
                 {"GasFX_ReadGRDisplayType"},
                 {"GasFX_WriteGRDisplayType"},
                 "a code: how a front end shows the gas flow rate profile",
                 {.older = {"GetGasGRDisplayType"}}},
    Key<Integer>{"GRProfileType",
                 {"GasFX_ReadGRProfileType"},
                 {"GasFX_WriteGRProfileType"},
                 "a code: in which form the gas flow rate profile was entered",
                 {.older = {"GetGasGRProfileType"}}},
    Key<Integer>{"GPDisplayType",
                 {"GasFX_ReadGPDisplayType"},
                 {"GasFX_WriteGPDisplayType"},
                 "a code: how a front end shows the gas pressure profile",
                 {.older = {"GetGasGPDisplayType"}}},
    Key<Integer>{"GPProfileType",
                 {"GasFX_ReadGPProfileType"},
                 {"GasFX_WriteGPProfileType"},
                 "a code: in which form the gas pressure profile was entered",
                 {.older = {"GetGasGPProfileType"}}},
    Key<Integer>{
        "GRSet",
        {"GasFX_ReadGRSection", "GasFX_ReadUserGRSection"},
        {"GasFX_WriteGRSection"},
        "the number of points of the gas flow rate profile",
        {.reading =
             "In spite of its name `GasFX_ReadUserGRSection` reads this key, too: what the user "
             "entered is read with `ReadString`.",
         .older = {"GetGasFRSection", "SetGasFRSection"}}},
    Key<RealPair>{
        "GR-%d",
        {"GasFX_ReadGRProfile", "GasFX_ReadUserGRProfile"},
        {"GasFX_WriteGRProfile"},
        "a point of the gas flow rate profile: the time in the stage, and the flow rate",
        {.reading =
             "In spite of its name `GasFX_ReadUserGRProfile` reads this key, too: what the user "
             "entered is read with `ReadString`.",
         .older = {"GetGasFRProfile", "SetGasFRProfile"},
         .counted_by = "GRSet"}},
    Key<Integer>{
        "GPSet",
        {"GasFX_ReadGPSection", "GasFX_ReadUserGPSection"},
        {"GasFX_WriteGPSection"},
        "the number of points of the gas pressure profile",
        {.reading =
             "In spite of its name `GasFX_ReadUserGPSection` reads this key, too: what the user "
             "entered is read with `ReadString`.",
         .older = {"GetGasGPSection", "SetGasGPSection"}}},
    Key<RealPair>{
        "GP-%d",
        {"GasFX_ReadGPProfile", "GasFX_ReadUserGPProfile"},
        {"GasFX_WriteGPProfile"},
        "a point of the gas pressure profile: the time in the stage, and the pressure, in MPa",
        {.reading =
             "In spite of its name `GasFX_ReadUserGPProfile` reads this key, too: what the user "
             "entered is read with `ReadString`.",
         .older = {"GetGasGPProfile", "SetGasGPProfile"},
         .counted_by = "GPSet"}},
    Key<Integer>{
        "UserGRSet",
        {},
        {"GasFX_WriteUserGRSection"},
        "the number of points of the gas flow rate profile as the user entered it",
        {.writing = "No member of the reader reads it.", .older = {"GetUserGasFRSection"}}},
    Key<RealPair>{"UserGR-%d",
                  {},
                  {"GasFX_WriteUserGRProfile"},
                  "a point of the gas flow rate profile as the user entered it: x and y",
                  {.writing = "No member of the reader reads it.",
                   .older = {"GetUserGasFRProfile"},
                   .counted_by = "UserGRSet"}},
    Key<Integer>{
        "UserGPSet",
        {},
        {"GasFX_WriteUserGPSection"},
        "the number of points of the gas pressure profile as the user entered it",
        {.writing = "No member of the reader reads it.", .older = {"GetUserGasGPSection"}}},
    Key<RealPair>{"USerGP-%d",
                  {},
                  {"GasFX_WriteUserGPProfile"},
                  "a point of the gas pressure profile as the user "
                  "entered it, under a key with a capital S: x and y",
                  {.writing = "No member of the reader reads it.", .counted_by = "UserGPSet"}},
    // Only the older object serves this one.
    Key<RealPair>{"UserGP-%d",
                  {},
                  {},
                  "a point of the gas pressure profile as the user entered it, as the older object "
                  "looks for it: "
                  "x and y",
                  {.older = {"GetUserGasGPProfile"}, .counted_by = "UserGPSet"}},
};

inline constexpr SectionInfo kInfo{
    kSection, "GasFX", "gas-assisted filling at a gas inlet", kKeys, {"inlet", "the inlet"}};

}  // namespace qel::gas_f_x

using CQELPROBlockIOGasFX = qel::SectionBlock<qel::gas_f_x::kInfo>;
