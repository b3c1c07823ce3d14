#pragma once

#include "blocks/block.h"

/// [FlowCTL]: what controls filling, packing, the switch-over from velocity to pressure control
/// (V/P) and the begin of curing.
namespace qel::flow_ctl {

inline constexpr char kSection[] = "[FlowCTL]";

inline constexpr KeyInfo kKeys[] = {
    Key<Integer>{"FlowCtrl",
                 {"FlowCTL_ReadFlowCtrl"},
                 {"FlowCTL_WriteFlowCtrl"},
                 "a code: which quantity controls filling",
                 {.older = {"GetFlowCTLFlowCtrl"}, .loader = ProcessItem::FlowCtrl}},
    Key<Integer>{"VPSwitchCtrl",
                 {"FlowCTL_ReadVPSwitchCtrl"},
                 {"FlowCTL_WriteVPSwitchCtrl"},
                 "the criterion of the V/P switch-over: 0 filled volume, 1 ram position, 2 "
                 "injection pressure, "
                 "3 a further one over the filled volume",
                 {.older = {"GetFlowCTLVPSwitchCtrl"},
                  .loader = ProcessItem::VPSwitchCtrl,
                  .value_reader = {"GetVPSwitch"}}},
    Key<Integer>{"PackingCtrl",
                 {"FlowCTL_ReadPackingCtrl"},
                 {"FlowCTL_WritePackingCtrl"},
                 "a code: which quantity controls packing",
                 {.older = {"GetFlowCTLPackingCtrl"}, .loader = ProcessItem::PackingCtrl}},
    Key<Real>{"MoldTemperature",
              {"FlowCTL_ReadMoldTemperature"},
              {"FlowCTL_WriteMoldTemperature"},
              "the mold temperature, in oC",
              {.older = {"GetFlowCTLMoldTemperature"},
               .adapter = {"GetMaterialTemperature"},
               .loader = ProcessItem::MoldTemperature}},
    Key<Real>{"MeltTemperature",
              {"FlowCTL_ReadMeltTemperature"},
              {"FlowCTL_WriteMeltTemperature"},
              "the melt temperature, in oC",
              {.older = {"GetFlowCTLMeltTemperature"},
               .adapter = {"GetMaterialTemperature"},
               .loader = ProcessItem::MeltTemperature}},
    Key<Real>{"InjectionTime",
              {"FlowCTL_ReadInjectionTime"},
              {"FlowCTL_WriteInjectionTime"},
              "the injection time, in sec",
              {.older = {"GetFlowCTLInjectionTime"}, .loader = ProcessItem::InjectionTime}},
    Key<Real>{"VolumeFilled",
              {"FlowCTL_ReadVolumeFilled"},
              {"FlowCTL_WriteVolumeFilled"},
              "how much is filled when the V/P switch-over comes, for the criteria 0 and 3",
              {.older = {"GetFlowCTLVolumeFilled"},
               .loader = ProcessItem::VolumeFilled,
               .value_reader = {"GetVPSwitch"}}},
    Key<Real>{"RamPosition",
              {"FlowCTL_ReadRamPosition"},
              {"FlowCTL_WriteRamPosition"},
              "the ram position at which the V/P switch-over comes, for criterion 1",
              {.older = {"GetFlowCTLRamPosition"},
               .loader = ProcessItem::RamPosition,
               .value_reader = {"GetVPSwitch"}}},
    Key<Real>{"InjectionPressure",
              {"FlowCTL_ReadInjectionPressure"},
              {"FlowCTL_WriteInjectionPressure"},
              "the injection pressure at which the V/P switch-over comes, in MPa, for criterion 2",
              {.older = {"GetFlowCTLInjectionPressure"},
               .loader = ProcessItem::InjectionPressure,
               .value_reader = {"GetVPSwitch"}}},
    Key<Real>{"CureSwitch",
              {"FlowCTL_ReadCureSwitch"},
              {"FlowCTL_WriteCureSwitch"},
              "the switch value at which curing begins, beside the three of \"CureEnter\""},
    Key<Integer>{"CureTempCtrl",
                 {"FlowCTL_ReadCureTempCtrl"},
                 {},
                 "a code: what controls the temperature of curing"},
    Key<Integer>{"CureEnterType",
                 {"FlowCTL_ReadCureEnterType"},
                 {"FlowCTL_WriteCureEnterType"},
                 "a code: what makes curing begin",
                 {.unused = {"index", "an index"}, .loader = ProcessItem::CureEnterType}},
    Key<Real>{"CureEnterSwch",
              {"FlowCTL_ReadCureEnterSwitch"},
              {"FlowCTL_WriteCureEnterSwitch"},
              "the switch value at which curing begins",
              {.unused = {"index", "an index"}, .loader = ProcessItem::CureEnterSwch}},
    Key<Real>{"CureEnterTime",
              {"FlowCTL_ReadCureEnterTime"},
              {"FlowCTL_WriteCureEnterTime"},
              "the time at which curing begins, in sec",
              {.unused = {"index", "an index"}, .loader = ProcessItem::CureEnterTime}},
};

inline constexpr SectionInfo kInfo{kSection, "FlowCTL",
                                   "what controls filling, packing, the switch-over from velocity "
                                   "to pressure control (V/P) and the begin of curing",
                                   kKeys};

}  // namespace qel::flow_ctl

using CQELPROBlockIOFlowCTL = qel::SectionBlock<qel::flow_ctl::kInfo>;
