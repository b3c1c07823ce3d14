#pragma once

#include <array>
#include <atomic>
#include <memory>

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
#include "core/document.h"

/// What stands behind one exported reader or writer: one block of each section kind, and the
/// document that they share.
class CQELPROIOBase {
 public:
  CQELPROIOBase();
  CQELPROIOBase(const CQELPROIOBase&) = delete;
  CQELPROIOBase& operator=(const CQELPROIOBase&) = delete;
  virtual ~CQELPROIOBase() = default;

  /// Attaches the document to every block, whatever each answers; true when all of them took it.
  /// Null changes nothing.
  bool AttachDocument(CQELPROIO* document);

  [[nodiscard]] CQELPROIO& document() { return *document_; }

  /// Copies of an exported object share its session; the last owner releases it.
  void AddOwner() { ++owners_; }
  [[nodiscard]] bool DropOwner() { return --owners_ == 0; }

  CQELPROBlockIOFileHeader file_header;
  CQELPROBlockIOCaeHeader cae_header;
  CQELPROBlockIOSummary summary;
  CQELPROBlockIOUnit unit;
  CQELPROBlockIOFlowCTL flow_ctl;
  CQELPROBlockIOFlowX flow_x;
  CQELPROBlockIOPackX pack_x;
  CQELPROBlockIOCureX cure_x;
  CQELPROBlockIOCool cool;
  CQELPROBlockIOCoolCTL cool_ctl;
  CQELPROBlockIOCoolant coolant;
  CQELPROBlockIOCoolChannelX cool_channel_x;
  CQELPROBlockIOVarCoolCTL var_cool_ctl;
  CQELPROBlockIOGateCTL gate_ctl;
  CQELPROBlockIOGateValveX gate_valve_x;
  CQELPROBlockIOMachine machine;
  CQELPROBlockIOProject project;
  CQELPROBlockIORamPosition ram_position;
  CQELPROBlockIOMoldbase moldbase;
  CQELPROBlockIOMoldMetalMaterial mold_metal_material;
  CQELPROBlockIOMoldTemperatureBCX mold_temperature_bc_x;
  CQELPROBlockIOGasFX gas_f_x;
  CQELPROBlockIOAdvancedSetting advanced_setting;
  CQELPROBlockIOTransientInletConv transient_inlet_conv;
  CQELPROBlockIOMoldThermalBoundaryType mold_thermal_boundary_type;
  CQELPROBlockIOICPackage ic_package;
  CQELPROBlockIOPartingSurface parting_surface;
  CQELPROBlockIOEjectCriteria eject_criteria;
  CQELPROBlockIOPartInsertInitialTemperature part_insert_initial_temperature;
  CQELPROBlockIOMoldInsertInitialTemperature mold_insert_initial_temperature;
  CQELPROBlockIOMoldbaseInfo moldbase_info;
  CQELPROBlockIOMoldPreHeat mold_preheat;
  CQELPROBlockIOMoldPreHeatCoolChannelX mold_preheat_cool_channel_x;
  CQELPROBlockIOMicroCellularMolding micro_cellular_molding;
  CQELPROBlockIOFlowCTLInfo flow_ctl_info;
  CQELPROBlockIOOverflow overflow;
  CQELPROBlockIOPartInsertContactAngle part_insert_contact_angle;
  CQELPROBlockIOCoInjectionFlowX co_injection_flow_x;

  /// The blocks in the order in which they are attached.
  std::array<CQELPROBlockIOBase*, 38> Blocks();

 private:
  std::unique_ptr<CQELPROIO> document_;
  std::atomic<int> owners_{1};
};

class CQELPROReader : public CQELPROIOBase {};

class CQELPROWriter : public CQELPROIOBase {};
