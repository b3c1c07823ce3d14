#include "encodings.h"

#include <tuple>
#include <type_traits>

#include "blocks/compound_encoding.h"
#include "blocks/encoding.h"
#include "blocks/name_encoding.h"
#include "blocks/positional_encoding.h"

namespace {

using namespace qel;

// Asks the encoding itself: an empty text supplies nothing.
template <class Encoding>
std::string_view absent() {
  typename Encoding::Values values{};
  char nothing[] = "";
  return std::apply(
      [&](auto&... outputs) -> std::string_view {
        const auto mark = [](auto& output) {
          if constexpr (std::is_arithmetic_v<std::remove_reference_t<decltype(output)>>) {
            output = 7;
          }
        };
        const auto kept = [](const auto& output) {
          if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(output)>>) {
            return output == 7;
          }
          return false;
        };
        (mark(outputs), ...);
        if constexpr (requires { Encoding::scan(nothing, 1, outputs...); }) {
          Encoding::scan(nothing, 1, outputs...);
        } else {
          Encoding::scan(nothing, outputs...);
        }
        return (kept(outputs) || ...) ? "is left alone" : "becomes 0";
      },
      values);
}

template <class Encoding, class... Values>
EncodingText written(std::string_view read, Values... values) {
  return {Encoding::kName, read, Encoding::print(values...), true, absent<Encoding>()};
}

constexpr std::string_view kInsert =
    "%d %s %lf: of a name with blanks the first word, and then no temperature; nothing between two "
    "tabs before a number is an empty name";
constexpr std::string_view kInsertOfFour =
    "four pieces between tabs; or words, whose last is the temperature or the fourth, see below";

template <class Encoding>
EncodingText read_only(std::string_view read, std::string example) {
  return {Encoding::kName, read, std::move(example), false, absent<Encoding>()};
}

}  // namespace

const std::vector<EncodingText>& encodings() {
  static const std::vector<EncodingText> all = {
      written<Integer>("%d", 5),
      written<Real>("%lf", 0.5),
      {Text::kName, "as it stands", "Norvik Presses", true, "is an empty text"},
      read_only<IntegerPair>("%d %d", "1 2"),
      read_only<FirstOfIntegerPair>("%d %d, the second dropped", "8 0"),
      written<RealPair>("%lf %lf", 0.5, 30.0),
      written<RealTriple>("%lf %lf %lf", 0.0, 0.0, 1.0),
      written<FourRealsAndInteger>("%lf %lf %lf %lf %d", 60.0, 120.0, 2.5, 0.0, 1),
      written<ControlPoint>("%lf %d %lf %lf %d", 0.0, 1, 60.0, 120.0, 0),
      written<IntegerAndThreeReals>("%d %lf %lf %lf", 2, 0.5, 1.0, 1.5),
      written<IntegerAndReal>("%d %lf", 120, 85.0),
      written<SizePair>("%lf%c%lf, both numbers decimal", 1200.0, 900.0),
      written<SizeTriple>("%lf%c%lf%c%lf, all numbers decimal", 5.2, 1.4, 2.1),
      written<ZoneCount>("%d, or %d%c%d and their sum where the text holds a +", 6),
      written<RealWithNote>("%lf, the rest passed over", 1500.0, "W/m^2.K"),
      written<GatePoint>("%lf %d %d %d; for modes 1 and 4 the last is -1, and a mode that is none "
                         "of 1 to 4 is written as an empty value",
                         5.5, 1, 2, 7),
      written<GatePointShort>("%lf %d %d", 5.5, 1, 1),
      written<CoolantLine>("%lf %lf %lf %lf %d %s %lf %d", 1.0, 4.183e7, 59800.0, 0.01006, 1,
                           "Water", 8.0, 2),
      written<MoldbaseLine>("%lf %lf %lf, the name, %lf %lf %lf", 7.8, 0.46, 29.0, "Tool Steel P20",
                            1.0, 2.0, 3.0),
      written<MoldMetalLine>("%lf %lf %lf, the name, %lf %lf %lf", 7.8, 0.46, 29.0,
                             "Tool Steel P20", 1.0, 2.0, 3.0),
      written<IntegerAndQuotedName>("%d, and the text between the first and the last double quote",
                                    3, "Base A"),
      written<PartInsertLine>(kInsert, 3, "Core", 80.0),
      written<MoldInsertLine>(kInsert, 4, "Plate", 90.0),
      read_only<PartInsertLineOfFour>(kInsertOfFour, "3\tCore Pin A\t80\t2"),
      read_only<MoldInsertLineOfFour>(kInsertOfFour, "4\tPlate\t90\t1"),
      {ContactAngle::kName, "the text between the first two double quotes, and the number after it",
       ContactAngle::print("Rib", 40.0), true,
       "is an error without two quotes; a missing angle is 0"},
      written<PositionalHeader>(
          "%d %s %d, the name with its blanks in a line of four words or more", 2, "Cavity Surface",
          0),
      written<PositionalSetting>("%d %c %lf %lf, the first two dropped", 1, 40.0, 60.0),
  };
  return all;
}
