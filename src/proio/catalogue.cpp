#include "proio/catalogue.h"

#include <cstddef>
#include <iterator>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "blocks/block.h"
#include "blocks/cool_channel_x.h"
#include "blocks/cool_ctl.h"
#include "blocks/coolant.h"
#include "blocks/cure_x.h"
#include "blocks/eject_criteria.h"
#include "blocks/flow_x.h"
#include "blocks/gas_f_x.h"
#include "blocks/gate_ctl.h"
#include "blocks/gate_valve_x.h"
#include "blocks/mold_preheat_cool_channel_x.h"
#include "blocks/overflow.h"
#include "blocks/pack_x.h"
#include "blocks/part_insert_initial_temperature.h"
#include "blocks/quick_setting.h"
#include "blocks/ram_position.h"
#include "blocks/var_cool_ctl.h"

namespace qel::proio {
namespace {

// The kinds count from 1, in the order of the enumerations.
constexpr const char* kBlocks[] = {
    qel::flow_x::kSection,                       // BLOCK_FLOW
    qel::pack_x::kSection,                       // BLOCK_PACK
    qel::gas_f_x::kSection,                      // BLOCK_GASF
    qel::gate_valve_x::kSection,                 // BLOCK_GATE_VALVE
    qel::cure_x::kSection,                       // BLOCK_CURE
    qel::cool_channel_x::kSection,               // BLOCK_COOL_CHANNEL
    qel::overflow::kSection,                     // BLOCK_OF_GATE_VALVE
    qel::mold_preheat_cool_channel_x::kSection,  // BLOCK_MPREHEAT_COOL_CHANNEL
};

constexpr const char* kKeys[] = {
    key_of(qel::flow_x::kKeys, "FR-%d"),                                   // KEY_FR
    key_of(qel::flow_x::kKeys, "UserFR-%d"),                               // KEY_USER_FR
    key_of(qel::flow_x::kKeys, "IP-%d"),                                   // KEY_IP
    key_of(qel::flow_x::kKeys, "UserIP-%d"),                               // KEY_USER_IP
    key_of(qel::pack_x::kKeys, "UserPP-%d"),                               // KEY_USER_PP
    key_of(qel::pack_x::kKeys, "PP-%d"),                                   // KEY_PP
    key_of(qel::cool_ctl::kKeys, "T-%d"),                                  // KEY_T
    key_of(qel::cool_ctl::kKeys, "F-%d"),                                  // KEY_F
    key_of(qel::cool_ctl::kKeys, "M-%d"),                                  // KEY_M
    key_of(qel::coolant::kKeys, "%d"),                                     // KEY_INDEX
    key_of(qel::gate_ctl::kKeys, "ST-%d"),                                 // KEY_ST
    key_of(qel::gate_ctl::kKeys, "ET-%d"),                                 // KEY_ET
    key_of(qel::ram_position::kKeys, "RP_FR-%d"),                          // KEY_RP_FR
    key_of(qel::ram_position::kKeys, "RP_IP-%d"),                          // KEY_RP_IP
    key_of(qel::gas_f_x::kKeys, "UserGR-%d"),                              // KEY_USER_GR
    key_of(qel::gas_f_x::kKeys, "GR-%d"),                                  // KEY_GR
    key_of(qel::gas_f_x::kKeys, "UserGP-%d"),                              // KEY_USER_GP
    key_of(qel::gas_f_x::kKeys, "GP-%d"),                                  // KEY_GP
    key_of(qel::gate_valve_x::kKeys, "GC-%d"),                             // KEY_GC
    key_of(qel::quick_setting::kKeys, "Q_Setting_%d"),                     // KEY_Q_SETTING
    key_of(qel::quick_setting::kKeys, "Pi_Setting_%d"),                    // KEY_PI_SETTING
    key_of(qel::quick_setting::kKeys, "Pp_Setting_%d"),                    // KEY_PP_SETTING
    key_of(qel::flow_x::kKeys, "UserTP-%d"),                               // KEY_USER_TP
    key_of(qel::flow_x::kKeys, "TP-%d"),                                   // KEY_TP
    key_of(qel::cure_x::kKeys, "UserCP-%d"),                               // KEY_USER_CP
    key_of(qel::cure_x::kKeys, "CP-%d"),                                   // KEY_CP
    key_of(qel::var_cool_ctl::kKeys, "Coolant-%d"),                        // KEY_COOLANT
    key_of(qel::cool_channel_x::kKeys, "TCP-%d"),                          // KEY_TCP
    key_of(qel::eject_criteria::kKeys, "SensorNode-%d"),                   // KEY_SENSOR_NODE
    key_of(qel::eject_criteria::kKeys, "CriteriaNode-%d"),                 // KEY_CRITERIA_NODE
    key_of(qel::part_insert_initial_temperature::kKeys, "PartInsert-%d"),  // KEY_PART_INSERT
};

static_assert(std::size(kBlocks) == CPROIO_Manipulator::BLOCK_MPREHEAT_COOL_CHANNEL);
static_assert(std::size(kKeys) == CPROIO_Manipulator::KEY_PART_INSERT);

template <std::size_t Count>
char* format(const char* const (&patterns)[Count], int number, int kind, Buffer& to) {
  if (kind < 1 || static_cast<std::size_t>(kind) > Count) {
    return to.assign({}).text();
  }
  const NumberedName name(patterns[kind - 1], number);
  return to.assign(name.str()).text();
}

}  // namespace

char* block_name(int number, int kind, Buffer& to) { return format(kBlocks, number, kind, to); }

char* key_name(int number, int kind, Buffer& to) { return format(kKeys, number, kind, to); }

}  // namespace qel::proio
