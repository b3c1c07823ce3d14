#pragma once

#include "blocks/advanced_setting.h"
#include "blocks/cae_header.h"
#include "blocks/co_injection_flow_x.h"
#include "blocks/cool.h"
#include "blocks/cool_channel_x.h"
#include "blocks/cool_ctl.h"
#include "blocks/coolant.h"
#include "blocks/cure_x.h"
#include "blocks/eject_criteria.h"
#include "blocks/file_header.h"
#include "blocks/flow_ctl.h"
#include "blocks/flow_ctl_info.h"
#include "blocks/flow_x.h"
#include "blocks/gas_f_x.h"
#include "blocks/gate_ctl.h"
#include "blocks/gate_valve_x.h"
#include "blocks/ic_package.h"
#include "blocks/machine.h"
#include "blocks/micro_cellular_molding.h"
#include "blocks/mold_insert_initial_temperature.h"
#include "blocks/mold_metal_material.h"
#include "blocks/mold_preheat.h"
#include "blocks/mold_preheat_cool_channel_x.h"
#include "blocks/mold_temperature_bc_x.h"
#include "blocks/mold_thermal_boundary_type.h"
#include "blocks/moldbase.h"
#include "blocks/moldbase_info.h"
#include "blocks/overflow.h"
#include "blocks/pack_x.h"
#include "blocks/part_insert_contact_angle.h"
#include "blocks/part_insert_initial_temperature.h"
#include "blocks/parting_surface.h"
#include "blocks/project.h"
#include "blocks/ram_position.h"
#include "blocks/summary.h"
#include "blocks/transient_inlet_conv.h"
#include "blocks/unit.h"
#include "blocks/var_cool_ctl.h"

namespace qel {

/// Objects of these classes, one after the other in this order.
template <class... Block>
struct BlockList : Block... {
  std::array<CQELPROBlockIOBase*, sizeof...(Block)> all() { return {static_cast<Block*>(this)...}; }

  static constexpr std::array<const SectionInfo*, sizeof...(Block)> kSections{&Block::kInfo...};
};

/// Every section kind that has a block, in the order in which a session holds and attaches them.
using SectionBlocks =
    BlockList<CQELPROBlockIOFileHeader, CQELPROBlockIOCaeHeader, CQELPROBlockIOSummary,
              CQELPROBlockIOUnit, CQELPROBlockIOFlowCTL, CQELPROBlockIOFlowX, CQELPROBlockIOPackX,
              CQELPROBlockIOCureX, CQELPROBlockIOCool, CQELPROBlockIOCoolCTL, CQELPROBlockIOCoolant,
              CQELPROBlockIOCoolChannelX, CQELPROBlockIOVarCoolCTL, CQELPROBlockIOGateCTL,
              CQELPROBlockIOGateValveX, CQELPROBlockIOMachine, CQELPROBlockIOProject,
              CQELPROBlockIORamPosition, CQELPROBlockIOMoldbase, CQELPROBlockIOMoldMetalMaterial,
              CQELPROBlockIOMoldTemperatureBCX, CQELPROBlockIOGasFX, CQELPROBlockIOAdvancedSetting,
              CQELPROBlockIOTransientInletConv, CQELPROBlockIOMoldThermalBoundaryType,
              CQELPROBlockIOICPackage, CQELPROBlockIOPartingSurface, CQELPROBlockIOEjectCriteria,
              CQELPROBlockIOPartInsertInitialTemperature,
              CQELPROBlockIOMoldInsertInitialTemperature, CQELPROBlockIOMoldbaseInfo,
              CQELPROBlockIOMoldPreHeat, CQELPROBlockIOMoldPreHeatCoolChannelX,
              CQELPROBlockIOMicroCellularMolding, CQELPROBlockIOFlowCTLInfo, CQELPROBlockIOOverflow,
              CQELPROBlockIOPartInsertContactAngle, CQELPROBlockIOCoInjectionFlowX>;

}  // namespace qel
