#include "proio/catalogue.h"

#include <cstddef>
#include <iterator>
#include <string_view>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "platform/number.h"

namespace qel::proio {
namespace {

// The kinds count from 1, in the order of the enumerations.
constexpr std::string_view kBlocks[] = {
    "[Flow-%d]",                  // BLOCK_FLOW
    "[Pack-%d]",                  // BLOCK_PACK
    "[GasF-%d]",                  // BLOCK_GASF
    "[GateValve-%d]",             // BLOCK_GATE_VALVE
    "[Cure-%d]",                  // BLOCK_CURE
    "[CoolChannel-%d]",           // BLOCK_COOL_CHANNEL
    "[OFGateValve-%d]",           // BLOCK_OF_GATE_VALVE
    "[MPreheat_CoolChannel-%d]",  // BLOCK_MPREHEAT_COOL_CHANNEL
};

constexpr std::string_view kKeys[] = {
    "FR-%d",            // KEY_FR
    "UserFR-%d",        // KEY_USER_FR
    "IP-%d",            // KEY_IP
    "UserIP-%d",        // KEY_USER_IP
    "UserPP-%d",        // KEY_USER_PP
    "PP-%d",            // KEY_PP
    "T-%d",             // KEY_T
    "F-%d",             // KEY_F
    "M-%d",             // KEY_M
    "%d",               // KEY_INDEX
    "ST-%d",            // KEY_ST
    "ET-%d",            // KEY_ET
    "RP_FR-%d",         // KEY_RP_FR
    "RP_IP-%d",         // KEY_RP_IP
    "UserGR-%d",        // KEY_USER_GR
    "GR-%d",            // KEY_GR
    "UserGP-%d",        // KEY_USER_GP
    "GP-%d",            // KEY_GP
    "GC-%d",            // KEY_GC
    "Q_Setting_%d",     // KEY_Q_SETTING
    "Pi_Setting_%d",    // KEY_PI_SETTING
    "Pp_Setting_%d",    // KEY_PP_SETTING
    "UserTP-%d",        // KEY_USER_TP
    "TP-%d",            // KEY_TP
    "UserCP-%d",        // KEY_USER_CP
    "CP-%d",            // KEY_CP
    "Coolant-%d",       // KEY_COOLANT
    "TCP-%d",           // KEY_TCP
    "SensorNode-%d",    // KEY_SENSOR_NODE
    "CriteriaNode-%d",  // KEY_CRITERIA_NODE
    "PartInsert-%d",    // KEY_PART_INSERT
};

static_assert(std::size(kBlocks) == CPROIO_Manipulator::BLOCK_MPREHEAT_COOL_CHANNEL);
static_assert(std::size(kKeys) == CPROIO_Manipulator::KEY_PART_INSERT);

template <std::size_t Count>
char* format(const std::string_view (&patterns)[Count], int number, int kind, Buffer& to) {
  if (kind < 1 || static_cast<std::size_t>(kind) > Count) {
    return to.assign({}).text();
  }
  constexpr std::string_view kNumber = "%d";
  const std::string_view pattern = patterns[kind - 1];
  const std::size_t at = pattern.find(kNumber);
  return to.assign(pattern.substr(0, at))
      .append(platform::print_int(number))
      .append(pattern.substr(at + kNumber.size()))
      .text();
}

}  // namespace

char* block_name(int number, int kind, Buffer& to) { return format(kBlocks, number, kind, to); }

char* key_name(int number, int kind, Buffer& to) { return format(kKeys, number, kind, to); }

}  // namespace qel::proio
