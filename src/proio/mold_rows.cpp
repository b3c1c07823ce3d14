#include <algorithm>
#include <iterator>

#include "proio/rows.h"
#include "proio/typed.h"
#include "proio/words.h"

using namespace qel::proio;

namespace {

// What a mold metal of an older file is taken for.
constexpr double kOlderMechanical[] = {2e12, 0.3, 0.00012};

}  // namespace

// A row of up to seven words has a name of one word; a longer one has a name of several, and all
// six numbers.
bool CPROIO_Manipulator::GetMoldMetal(const char* text, Buffer& name,
                                      QELPRO_MMM_MECHANICAL& record) {
  if (text == nullptr) {
    return false;
  }
  constexpr std::size_t kNumbersOnEachSide = 3;
  record.name = name.assign({}).text();
  double* thermal = record.thermal;
  double* mechanical = record.mechanical;
  const Words words(text);
  if (words.count() <= 2 * kNumbersOnEachSide + 1) {
    char* parsed = nullptr;
    Buffer Scratch::*const room =
        &name == &scratch().mold_base_name ? &Scratch::mold_base_name : &Scratch::mold_metal_name;
    scan_values(text, thermal[0], thermal[1], thermal[2], Word{parsed, room}, mechanical[0],
                mechanical[1], mechanical[2]);
    return true;
  }
  const std::size_t after_name = words.count() - kNumbersOnEachSide;
  for (std::size_t i = 0; i < kNumbersOnEachSide; ++i) {
    scan_values(words[i].data(), thermal[i]);
    scan_values(words[after_name + i].data(), mechanical[i]);
  }
  name.assign(words.stretch(kNumbersOnEachSide, after_name - 1));
  return true;
}

bool CPROIO_Manipulator::GetMoldRow(const Row& row, Buffer& buffer, double& first, double& second,
                                    double& third, char*& name) {
  char* text = nullptr;
  if (!Get(row, text)) {
    return false;
  }
  QELPRO_MMM_MECHANICAL record{};
  const bool parsed = GetMoldMetal(text, buffer, record);
  first = record.thermal[0];
  second = record.thermal[1];
  third = record.thermal[2];
  name = buffer.text();
  return parsed;
}

// Mechanical value 2 stands in the place of thermal value 3, and again in its own: existing files
// have this layout.
bool CPROIO_Manipulator::SetMoldRow(const Row& row, const QELPRO_MMM_MECHANICAL& record) {
  const double* mechanical = record.mechanical;
  return Set(row, record.thermal[0], record.thermal[1], mechanical[1], record.name, mechanical[0],
             mechanical[1], mechanical[2]);
}

// [Moldbase]

bool CPROIO_Manipulator::GetMoldbase(int row, double& first, double& second, double& third,
                                     char*& name) {
  return qel::attempt([&] {
    return GetMoldRow(moldbase::kRow.at(row), scratch().mold_base_name, first, second, third, name);
  });
}
bool CPROIO_Manipulator::SetMoldbase(int row, double first, double second, double third,
                                     char* name) {
  return Set(moldbase::kRow.at(row), first, second, third, name);
}
bool CPROIO_Manipulator::GetMoldbase(int row, QELPRO_MMM_MECHANICAL& record) {
  char* text = nullptr;
  return checkIsThisPROFileSupport(kGatedVersion) && Get(moldbase::kRow.at(row), text) &&
         GetMoldMetal(text, scratch().mold_base_name, record);
}
bool CPROIO_Manipulator::SetMoldbase(int row, const QELPRO_MMM_MECHANICAL& record) {
  return SetMoldRow(moldbase::kRow.at(row), record);
}

// [MoldMetalMaterial]

bool CPROIO_Manipulator::GetMoldMetalMaterial(int row, double& first, double& second, double& third,
                                              char*& name) {
  return qel::attempt([&] {
    return GetMoldRow(mold_metal::kRow.at(row), scratch().mold_metal_name, first, second, third,
                      name);
  });
}
bool CPROIO_Manipulator::SetMoldMetalMaterial(int row, double first, double second, double third,
                                              char* name) {
  return Set(mold_metal::kRow.at(row), first, second, third, name);
}
// Unlike the mold bases', the rows of older files are read all the same, and their mechanical
// values replaced.
bool CPROIO_Manipulator::GetMoldMetalMaterial(int row, QELPRO_MMM_MECHANICAL& record) {
  char* text = nullptr;
  if (!Get(mold_metal::kRow.at(row), text)) {
    return false;
  }
  const bool parsed = GetMoldMetal(text, scratch().mold_metal_name, record);
  if (checkIsThisPROFileSupport(kGatedVersion)) {
    return parsed;
  }
  std::copy(std::begin(kOlderMechanical), std::end(kOlderMechanical), record.mechanical);
  return false;
}
bool CPROIO_Manipulator::SetMoldMetalMaterial(int row, const QELPRO_MMM_MECHANICAL& record) {
  return SetMoldRow(mold_metal::kRow.at(row), record);
}
