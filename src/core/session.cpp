#include "core/session.h"

CQELPROIOBase::CQELPROIOBase() : document_(std::make_unique<CQELPROIO>()) {}

std::array<CQELPROBlockIOBase*, 38> CQELPROIOBase::Blocks() {
  return {&file_header,
          &cae_header,
          &summary,
          &unit,
          &flow_ctl,
          &flow_x,
          &pack_x,
          &cure_x,
          &cool,
          &cool_ctl,
          &coolant,
          &cool_channel_x,
          &var_cool_ctl,
          &gate_ctl,
          &gate_valve_x,
          &machine,
          &project,
          &ram_position,
          &moldbase,
          &mold_metal_material,
          &mold_temperature_bc_x,
          &gas_f_x,
          &advanced_setting,
          &transient_inlet_conv,
          &mold_thermal_boundary_type,
          &ic_package,
          &parting_surface,
          &eject_criteria,
          &part_insert_initial_temperature,
          &mold_insert_initial_temperature,
          &moldbase_info,
          &mold_preheat,
          &mold_preheat_cool_channel_x,
          &micro_cellular_molding,
          &flow_ctl_info,
          &overflow,
          &part_insert_contact_angle,
          &co_injection_flow_x};
}

bool CQELPROIOBase::AttachDocument(CQELPROIO* document) {
  if (document == nullptr) {
    return false;
  }
  bool all = true;
  for (CQELPROBlockIOBase* block : Blocks()) {
    all = block->AttachDocument(document) && all;
  }
  return all;
}
