#include "plans/scales.h"

#include <array>

#include "common/numbers.h"

namespace tamo {

const char kInchText[] = "\" =             '";
const char kMillimetreText[] = "mm =          ft";
const char kCentimetreText[] = "cm =          ft";

namespace {

constexpr ScaleEntry Inches(const char* name, const char* caption, const char* scale1,
                            const char* isScale = nullptr) {
  return {name, caption, scale1, "1", kInchText, isScale, true};
}

constexpr ScaleEntry Engineer(const char* name, const char* caption, const char* scale2) {
  return {name, caption, "1", scale2, kInchText, nullptr, true};
}

constexpr ScaleEntry Mm(const char* name, const char* caption, const char* scale2) {
  return {name, caption, "1", scale2, kMillimetreText, nullptr, true};
}

constexpr ScaleEntry Cm(const char* name, const char* caption, const char* scale2) {
  return {name, caption, "1", scale2, kCentimetreText, nullptr, true};
}

// 1"=100' keeps the unit text that stands, so after a metric scale the plan is still measured in
// millimetres. A test holds it.
constexpr ScaleEntry kOneHundred = {"OneHundred", "1\"=100'", "1", "100", nullptr, nullptr, true};

// 1mm:750ft is offered and does nothing. A test holds it.
constexpr ScaleEntry kNoAction = {"OneSevenHundredFifty", "1mm:750ft", "1",  "750",
                                  kMillimetreText,        nullptr,     false};

constexpr std::array kInch = {
    Inches("Sixteenth", "1/16\"", "1/16", "1/16\""),
    Inches("ThirtySecond", "3/32\"", "3/32"),
    Inches("Eighth", "1/8\"", "1/8"),
    Inches("ThreeSixteenth", "3/16\"", "3/16"),
    Inches("Quarter", "1/4\"", "1/4", "1/4\""),
    Inches("ThreeEighth", "3/8\"", "3/8"),
    Inches("Half", "1/2\"", "1/2", "1/2\""),
    Inches("ThreeQuarters", "3/4\"", "3/4"),
    Inches("Inch", "1\"", "1", "1\""),
    Inches("OneOneHalf", "1 1/2\"", "1 1/2"),
    Inches("OneThreeQuarters", "1 3/4\"", "1 3/4"),
    Inches("ThreeInch", "3\"", "3"),
    Engineer("Twenty", "1\"=20'", "20"),
    kOneHundred,
    Engineer("TwoHundred", "1\"=200'", "200"),
    Engineer("FiveHundred", "1\"=500'", "500"),
};

constexpr std::array kMillimetre = {
    Mm("OneOne", "1mm:1ft", "1"),
    Mm("OneFive", "1mm:5ft", "5"),
    Mm("OneTen", "1mm:10ft", "10"),
    Mm("OneTwenty", "1mm:20ft", "20"),
    Mm("OneFifty", "1mm:50ft", "50"),
    Mm("OneOneHundred", "1mm:100ft", "100"),
    Mm("OneOneTwentyFive", "1mm:125ft", "125"),
    Mm("OneOneFifty", "1mm:150ft", "150"),
    Mm("OneTwoHundred", "1mm:200ft", "200"),
    Mm("OneThreeHundred", "1mm:300ft", "300"),
    Mm("OneFourHundred", "1mm:400ft", "400"),
    Mm("OneFiveHundred", "1mm:500ft", "500"),
    Mm("OneSixHundred", "1mm:600ft", "600"),
    Mm("OneSevenHundred", "1mm:700ft", "700"),
    kNoAction,
    Mm("OneEightHundred", "1mm:800ft", "800"),
};

constexpr std::array kCentimetre = {
    Cm("OneOneC", "1cm:1ft", "1"),
    Cm("OneFiveC", "1cm:5ft", "5"),
    Cm("OneTenC", "1cm:10ft", "10"),
    Cm("OneTwentyC", "1cm:20ft", "20"),
    Cm("OneFiftyC", "1cm:50ft", "50"),
    Cm("OneOneHundredC", "1cm:100ft", "100"),
    Cm("OneOneTwentyFiveC", "1cm:125ft", "125"),
    Cm("OneOneFiftyC", "1cm:150ft", "150"),
    Cm("OneTwoHundredC", "1cm:200ft", "200"),
    Cm("OneThreeHundredC", "1cm:300ft", "300"),
    Cm("OneFourHundredC", "1cm:400ft", "400"),
    Cm("OneFiveHundredC", "1cm:500ft", "500"),
    Cm("OneSixHundredC", "1cm:600ft", "600"),
    Cm("OneSevenHundredC", "1cm:700ft", "700"),
    Cm("OneSevenHundredFiftyC", "1cm:750ft", "750"),
    Cm("OneEightHundredC", "1cm:800ft", "800"),
};

}  // namespace

std::span<const ScaleEntry> InchScales() {
  return kInch;
}
std::span<const ScaleEntry> MillimetreScales() {
  return kMillimetre;
}
std::span<const ScaleEntry> CentimetreScales() {
  return kCentimetre;
}

PaperUnit UnitOfText(const QString& text5) {
  if (text5.startsWith(QLatin1Char('m'))) return PaperUnit::Millimetres;
  return text5.startsWith(QLatin1Char('c')) ? PaperUnit::Centimetres : PaperUnit::Inches;
}

QString UnitInWords(PaperUnit unit) {
  if (unit == PaperUnit::Centimetres) return QStringLiteral("cm");
  return unit == PaperUnit::Millimetres ? QStringLiteral("mm") : QStringLiteral("inches");
}

QString ScaleInWords(const QString& scale1, const QString& scale2, PaperUnit unit) {
  if (Value(scale1) == 0 || Value(scale2) == 0) return QStringLiteral("No scale set");
  if (unit == PaperUnit::Inches)
    return scale1 + QStringLiteral("\" = ") + scale2 + QLatin1Char('\'');
  return scale1 + QLatin1Char(' ') + UnitInWords(unit) + QStringLiteral(" = ") + scale2 +
         QStringLiteral(" ft");
}

}  // namespace tamo
