// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/References.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "calc/Centile.h"
#include "calc/LookUp.h"
#include "foundation/Localizer.h"

namespace nascor::calc {
namespace {

using foundation::translatable;

std::optional<double> ifFinite(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

constexpr std::size_t placeOf(Quantity quantity) { return static_cast<std::size_t>(quantity); }

constexpr std::array<Quantity, 4> kLengths{Quantity::bpd, Quantity::hc, Quantity::ac, Quantity::fl};
constexpr std::array<Quantity, 1> kWeight{Quantity::efw};

// The four growth standards: the tables that the charts draw, by their look-ups.

using LengthTables = std::array<ReferenceTable, kLengths.size()>;

template <std::int64_t Standard>
const ReferenceTable& tableOf(Quantity quantity) {
  static const LengthTables kTables = [] {
    LengthTables tables;
    for (const Measurement measurement : kMeasurements)
      appendStandard(tables.at(static_cast<std::size_t>(measurement)), Standard, measurement);
    return tables;
  }();
  return kTables.at(placeOf(quantity));
}

template <std::int64_t Standard>
Population standardPopulation(Quantity quantity, double week) {
  const auto [mean, sd] = meanAndSDForGestation(tableOf<Standard>(quantity), week);
  return Population(NormalPopulation{.mean = mean, .sd = sd});
}

/// On the line through two points; at an end exactly that end.
double between(double x, double x0, double x1, double y0, double y1) {
  return y0 + (x - x0) / (x1 - x0) * (y1 - y0);
}

/// As the look-ups have it, but for the last week: there too the age between two rows, not that of the last.
template <std::int64_t Standard>
std::optional<double> standardWeekOfMedian(Quantity quantity, double value) {
  const ReferenceTable& table = tableOf<Standard>(quantity);
  if (!(value >= table.front().mean() && value <= table.back().mean())) return std::nullopt;
  const auto above = std::ranges::lower_bound(table, value, {}, &DatabaseRecord::mean);
  if (above == table.begin()) return above->observation();
  const auto below = std::prev(above);
  return between(value, below->mean(), above->mean(), below->observation(), above->observation());
}

template <std::int64_t Standard>
Reference standardReference(std::string_view assumes) {
  const GrowthStandard& standard = growthStandards()[Standard];
  return {.name = standard.name,
          .label = standard.label,
          .form = ReferenceForm::table,
          .quantities = kLengths,
          .firstWeek = standard.firstWeek,
          .lastWeek = standard.lastWeek,
          .assumes = assumes,
          .population = standardPopulation<Standard>,
          .weekOfMedian = standardWeekOfMedian<Standard>};
}

// The others are curves.

constexpr int kDaysOfWeek = 7;

/// Without a gap from the first day of `FirstWeek` to that of `LastWeek`.
template <int FirstWeek, int LastWeek>
using MediansByDay = std::array<double, std::size_t{(LastWeek - FirstWeek) * kDaysOfWeek + 1}>;

/// The medians of a quantity, worked out once: a search begins with them.
template <double (*Median)(Quantity, double), int FirstWeek, int LastWeek, const auto& Quantities>
const MediansByDay<FirstWeek, LastWeek>& mediansByDay(Quantity quantity) {
  using Medians = MediansByDay<FirstWeek, LastWeek>;
  static const std::array<Medians, kQuantities.size()> kMedians = [] {
    std::array<Medians, kQuantities.size()> all{};
    for (const Quantity each : Quantities) {
      Medians& medians = all.at(placeOf(each));
      for (std::size_t day = 0; day < medians.size(); ++day)
        medians.at(day) = Median(each, FirstWeek + static_cast<double>(day) / kDaysOfWeek);
    }
    return all;
  }();
  return kMedians.at(placeOf(quantity));
}

/// The age at which a median passes `value` for the first time. Looked for day by day, because a median may turn before the
/// last week, and within the day by halving.
template <double (*Median)(Quantity, double), int FirstWeek, int LastWeek, const auto& Quantities>
std::optional<double> curveWeekOfMedian(Quantity quantity, double value) {
  const auto& medians = mediansByDay<Median, FirstWeek, LastWeek, Quantities>(quantity);
  if (!(value >= medians.front())) return std::nullopt;
  const auto reached = std::find_if(std::next(medians.begin()), medians.end(),
                                    [value](double median) { return value <= median; });
  if (reached == medians.end()) return std::nullopt;
  const auto day = static_cast<double>(std::distance(medians.begin(), reached));
  double low = FirstWeek + (day - 1.0) / kDaysOfWeek;
  double high = FirstWeek + day / kDaysOfWeek;
  const auto middle = [&] { return low + (high - low) / 2.0; };
  while (low < middle() && middle() < high) (Median(quantity, middle()) < value ? low : high) = middle();
  return high;
}

template <double (*Median)(Quantity, double), int FirstWeek, int LastWeek, const auto& Quantities>
Reference curveReference(Reference row) {
  row.firstWeek = FirstWeek;
  row.lastWeek = LastWeek;
  row.quantities = Quantities;
  row.weekOfMedian = curveWeekOfMedian<Median, FirstWeek, LastWeek, Quantities>;
  return row;
}

// INTERGROWTH-21st (2014): mean and standard deviation by week.

struct Equations {
  double (*mean)(double w);
  double (*sd)(double w);
};

constexpr std::array<Equations, kLengths.size()> kIntergrowth2014{{
    {[](double w) { return 5.60878 + 0.158369 * std::pow(w, 2.0) - 0.00256379 * std::pow(w, 3.0); },
     [](double w) {
       return std::exp(0.101242 + 0.00150557 * std::pow(w, 3.0) -
                       0.000771535 * std::pow(w, 3.0) * std::log(w) +
                       0.0000999638 * std::pow(w, 3.0) * std::pow(std::log(w), 2.0));
     }},
    {[](double w) {
       return -28.2849 + 1.69267 * std::pow(w, 2.0) - 0.397485 * std::pow(w, 2.0) * std::log(w);
     },
     [](double w) {
       return 1.98735 + 0.0136772 * std::pow(w, 3.0) - 0.00726264 * std::pow(w, 3.0) * std::log(w) +
              0.000976253 * std::pow(w, 3.0) * std::pow(std::log(w), 2.0);
     }},
    {[](double w) { return -81.3243 + 11.6772 * w - 0.000561865 * std::pow(w, 3.0); },
     [](double w) {
       return -4.36302 + 0.121445 * std::pow(w, 2.0) - 0.0130256 * std::pow(w, 3.0) +
              0.00282143 * std::pow(w, 3.0) * std::log(w);
     }},
    {[](double w) { return -39.9616 + 4.32298 * w - 0.0380156 * std::pow(w, 2.0); },
     [](double w) {
       return std::exp(0.605843 - 42.0014 * std::pow(w, -2.0) + 0.00000917972 * std::pow(w, 3.0));
     }},
}};

double intergrowth2014Median(Quantity quantity, double week) {
  return kIntergrowth2014.at(placeOf(quantity)).mean(week);
}

Population intergrowth2014Population(Quantity quantity, double week) {
  const auto& [mean, sd] = kIntergrowth2014.at(placeOf(quantity));
  return Population(NormalPopulation{.mean = mean(week), .sd = sd(week)});
}

// INTERGROWTH-21st (2020), weight: skewness, median and variation of its logarithm.

Population intergrowth2020Population(Quantity /*quantity*/, double w) {
  const double g = w / 10.0;
  const double perSquare = std::pow(g, -2.0);
  return Population(
      SkewedPopulation{.lambda = 9.43643 + 9.41579 * perSquare - 83.54220 * perSquare * std::log(g),
                       .mu = -2.42272 + 1.86478 * std::sqrt(w) - 1.93299e-5 * std::pow(w, 3.0),
                       .sigma = 0.0193557 + 0.0310716 * perSquare - 0.0657587 * perSquare * std::log(g)});
}

double intergrowth2020Median(Quantity quantity, double week) {
  return intergrowth2020Population(quantity, week).median();
}

// Hadlock (1991), weight. The abstract has 12.7 % for the standard deviation; the printed percentiles have this one.

double hadlock1991Median(Quantity /*quantity*/, double w) {
  return std::exp(0.578 + 0.332 * w - 0.00354 * std::pow(w, 2.0));
}

Population hadlock1991Population(Quantity quantity, double week) {
  constexpr double kSDOfMean = 0.1327;
  const double mean = hadlock1991Median(quantity, week);
  return Population(NormalPopulation{.mean = mean, .sd = kSDOfMean * mean});
}

// WHO (2017): the logarithm of the value at each centile, a polynomial of the week. Kiserud T et al., PLoS Med
// 2017;14:e1002220 with its revision of 2023-03-13, under CC BY.

using Polynomial = std::array<double, 5>;

constexpr std::array<std::array<Polynomial, QuantilePopulation::kCentiles.size()>, kQuantities.size()> kWHO{{
    {{
        // BPD
        {0.591008401542612, 0.251833515513537, -0.00582602136865785, 4.85842528593502e-05, 0.0},
        {0.58340478243682, 0.257706867351367, -0.00608380366281251, 5.16940376186165e-05, 0.0},
        {0.640086541374477, 0.25352855332296, -0.00591651627062447, 4.94614232987744e-05, 0.0},
        {0.67586050811029, 0.25343383445191, -0.00595606903884204, 5.03055604381436e-05, 0.0},
        {0.769315103415485, 0.249927024175735, -0.00592399444708251, 5.076548429269e-05, 0.0},
        {0.872984231314326, 0.243385003540798, -0.00571172523683453, 4.82880035733658e-05, 0.0},
        {0.983298265402666, 0.236071116567572, -0.00548348083012818, 4.58419655773418e-05, 0.0},
        {1.01351909208103, 0.237088857953509, -0.0055421492813894, 4.65258350076297e-05, 0.0},
        {1.11401192681678, 0.228258457814188, -0.00524271052970102, 4.31665697359201e-05, 0.0},
        {1.17917438634649, 0.224245686901115, -0.00513638678692311, 4.21401138788865e-05, 0.0},
        {1.18876528083144, 0.22624188722951, -0.00522504825833189, 4.31577122241698e-05, 0.0},
    }},
    {{
        // HC
        {1.51782795874402, 0.299296859125438, -0.00752376152126206, 6.7179373384666e-05, 0.0},
        {1.59317517131532, 0.29459800552433, -0.0073860372566707, 6.56951770216148e-05, 0.0},
        {1.74883945698398, 0.278405280785763, -0.00677990950687641, 5.83587774721548e-05, 0.0},
        {1.83059537388222, 0.27244251174974, -0.00659546864496838, 5.63957469365128e-05, 0.0},
        {1.94181945227701, 0.26584757167445, -0.00644544904011178, 5.54517813431795e-05, 0.0},
        {2.09924879247164, 0.253373656106037, -0.00605647816678282, 5.14256072059917e-05, 0.0},
        {2.20777451923048, 0.245212320927953, -0.00578557948587613, 4.83972618799514e-05, 0.0},
        {2.31776999721364, 0.236651510200538, -0.00550781288608926, 4.53975879344267e-05, 0.0},
        {2.39550106176494, 0.229586666082063, -0.00525318141633775, 4.23738937924844e-05, 0.0},
        {2.50074069629423, 0.220067854715719, -0.00493623111462443, 3.89066000946519e-05, 0.0},
        {2.50189533265806, 0.223785148311865, -0.00514245402239348, 4.20117020605557e-05, 0.0},
    }},
    {{
        // AC
        {1.19682766661905, 0.309985569982485, -0.00779821008212983, 7.21601862187339e-05, 0.0},
        {1.19202778944614, 0.314756681991964, -0.00801581308902169, 7.51395976546808e-05, 0.0},
        {1.09869954558741, 0.330079995799838, -0.00862095843727276, 8.25440120054722e-05, 0.0},
        {1.24418122481299, 0.316315401650234, -0.00814092689297361, 7.72501495178619e-05, 0.0},
        {1.44520878528145, 0.299433786203949, -0.00759672485585945, 7.1668993412344e-05, 0.0},
        {1.58552931028045, 0.289936781915424, -0.00732651929135797, 6.9261631643994e-05, 0.0},
        {1.71452506914277, 0.281367067786763, -0.00708195596502471, 6.7086230433841e-05, 0.0},
        {1.78078382317074, 0.279278890414784, -0.0070643788983289, 6.75104548969352e-05, 0.0},
        {1.83213806223649, 0.277106952998102, -0.00703388540291938, 6.76124200964958e-05, 0.0},
        {2.03674472691951, 0.257138461817474, -0.00634918788914223, 6.0053745113196e-05, 0.0},
        {2.12378932803127, 0.248505815693966, -0.00601677942684253, 5.62286023490798e-05, 0.0},
    }},
    {{
        // FL
        {-7.63357391915398, 1.32616480908407, -0.0603406386286656, 0.00127059302964739,
         -1.01590910980777e-05},
        {-7.27187176976836, 1.28298928826162, -0.0580601892487905, 0.00121314319801879,
         -9.60171505470123e-06},
        {-7.07052933404414, 1.26780052700097, -0.0577556347769781, 0.00121608381996396,
         -9.70361787292646e-06},
        {-6.69175407354157, 1.22500911064189, -0.055920618206786, 0.00118320191905997, -9.50365006831978e-06},
        {-6.07953118554742, 1.15245170563351, -0.0525510654314434, 0.00111418613323875, -8.9802280974713e-06},
        {-5.54922620776446, 1.09559990166124, -0.0501310925949098, 0.0010678072569586, -8.63970606288493e-06},
        {-4.68666987282664, 0.978111793398168, -0.0439319069083821, 0.00092346644003072,
         -7.39427758542544e-06},
        {-4.31219596825529, 0.94038705308254, -0.0424709867520927, 0.00089977742409265,
         -7.26284658350453e-06},
        {-4.12398207550525, 0.920344210800571, -0.0415728969581384, 0.000881055511995407,
         -7.10843959625547e-06},
        {-3.64483930811801, 0.857028131514986, -0.0384005685481303, 0.000812062784461527,
         -6.55932416998498e-06},
        {-3.40004123807778, 0.834596760116344, -0.0376568882663223, 0.000803601513837836,
         -6.55323852770109e-06},
    }},
    {{
        // EFW
        {-0.0501496264869835, 0.374471599175392, -0.00534930256943893, 2.3744363684445e-05, 0.0},
        {-0.230518383014592, 0.400511116318458, -0.00617993235833267, 3.16595762972649e-05, 0.0},
        {-0.162057103557898, 0.393965369913166, -0.00579733056422172, 2.55319128239087e-05, 0.0},
        {-0.0455887642525626, 0.389314052082164, -0.00574527674062641, 2.65557891064333e-05, 0.0},
        {-0.012258767992062, 0.393836404898322, -0.00592304885519551, 2.8863017896588e-05, 0.0},
        {0.157310086966445, 0.383067935520509, -0.00554046846639963, 2.46570062800598e-05, 0.0},
        {0.293297386426919, 0.376096229210412, -0.00529255036113726, 2.18372277641981e-05, 0.0},
        {0.353142227490073, 0.376486874470206, -0.00528742945785833, 2.14760212556463e-05, 0.0},
        {0.285025055968914, 0.390621472299378, -0.00582929182402995, 2.79088693116937e-05, 0.0},
        {0.408170594889372, 0.381068214664342, -0.00550913922743603, 2.46713147783532e-05, 0.0},
        {0.79584342596075, 0.342142215761221, -0.00414863204456851, 1.02097735855226e-05, 0.0},
    }},
}};

double valueOn(const Polynomial& curve, double w) {
  return std::exp(curve[0] + w * (curve[1] + w * (curve[2] + w * (curve[3] + w * curve[4]))));
}

double whoMedian(Quantity quantity, double week) {
  constexpr std::size_t kMedian = 5;
  return valueOn(kWHO.at(placeOf(quantity)).at(kMedian), week);
}

Population whoPopulation(Quantity quantity, double week) {
  QuantilePopulation population{};
  std::ranges::transform(kWHO.at(placeOf(quantity)), population.values.begin(),
                         [week](const Polynomial& curve) { return valueOn(curve, week); });
  return Population(population);
}

// What each form of population can say.

double medianOf(const NormalPopulation& population) { return population.mean; }
double medianOf(const SkewedPopulation& population) { return std::exp(population.mu); }
double medianOf(const QuantilePopulation& population) {
  return population.values[population.values.size() / 2];
}

double zOf(const NormalPopulation& population, double value) {
  return zScore(value, population.mean, population.sd);
}
double zOf(const SkewedPopulation& population, double value) {
  const auto& [lambda, mu, sigma] = population;
  const double logarithm = std::log(std::log(value) / mu);
  // Near a lambda of 0 the power less 1 would lose its digits.
  return (lambda == 0.0 ? logarithm : std::expm1(lambda * logarithm) / lambda) / sigma;
}
double zOf(const QuantilePopulation& /*population*/, double /*value*/) {
  return std::numeric_limits<double>::quiet_NaN();
}

double valueAt(const NormalPopulation& population, double z) { return population.mean + z * population.sd; }
double valueAt(const SkewedPopulation& population, double z) {
  const auto& [lambda, mu, sigma] = population;
  const double logarithm = lambda == 0.0 ? z * sigma : std::log1p(z * sigma * lambda) / lambda;
  return std::exp(mu * std::exp(logarithm));
}
double valueAt(const QuantilePopulation& /*population*/, double /*z*/) {
  return std::numeric_limits<double>::quiet_NaN();
}

template <class AnyPopulation>
std::optional<Centile> centileOf(const AnyPopulation& population, double value) {
  const auto z = ifFinite(zOf(population, value));
  if (!z) return std::nullopt;
  return Centile{.percent = centileOfZ(*z)};
}
std::optional<Centile> centileOf(const QuantilePopulation& population, double value) {
  constexpr auto kCentiles = QuantilePopulation::kCentiles;
  const auto& values = population.values;
  if (value < values.front()) return Centile{.percent = kCentiles.front(), .side = Centile::Side::below};
  if (value > values.back()) return Centile{.percent = kCentiles.back(), .side = Centile::Side::above};
  if (value == values.front()) return Centile{.percent = kCentiles.front()};
  const auto above = static_cast<std::size_t>(std::ranges::lower_bound(values, value) - values.begin());
  return Centile{.percent = between(value, values.at(above - 1), values.at(above), kCentiles.at(above - 1),
                                    kCentiles.at(above))};
}

template <class AnyPopulation>
std::optional<double> valueOfCentile(const AnyPopulation& population, double percent) {
  return ifFinite(valueAt(population, zOfCentile(percent)));
}
std::optional<double> valueOfCentile(const QuantilePopulation& population, double percent) {
  constexpr auto kCentiles = QuantilePopulation::kCentiles;
  const auto& values = population.values;
  if (!(percent >= kCentiles.front() && percent <= kCentiles.back())) return std::nullopt;
  if (percent == kCentiles.front()) return values.front();
  const auto above =
      static_cast<std::size_t>(std::ranges::lower_bound(kCentiles, percent) - kCentiles.begin());
  return between(percent, kCentiles.at(above - 1), kCentiles.at(above), values.at(above - 1),
                 values.at(above));
}

}  // namespace

std::string_view nameOf(Quantity quantity) {
  static constexpr std::array<std::string_view, kQuantities.size()> kNames{"bpd", "hc", "ac", "fl", "efw"};
  return kNames.at(placeOf(quantity));
}

std::string_view nameOf(ReferenceForm form) {
  static constexpr std::array<std::string_view, 4> kNames{"table", "mean-sd", "lms", "quantiles"};
  return kNames.at(static_cast<std::size_t>(form));
}

double Population::median() const {
  return std::visit([](const auto& kind) { return medianOf(kind); }, kind_);
}

std::optional<double> Population::mean() const {
  const auto* normal = std::get_if<NormalPopulation>(&kind_);
  return normal != nullptr ? std::optional(normal->mean) : std::nullopt;
}

std::optional<double> Population::sd() const {
  const auto* normal = std::get_if<NormalPopulation>(&kind_);
  return normal != nullptr ? std::optional(normal->sd) : std::nullopt;
}

std::optional<double> Population::z(double value) const {
  return ifFinite(std::visit([value](const auto& kind) { return zOf(kind, value); }, kind_));
}

std::optional<Centile> Population::centile(double value) const {
  return std::visit([value](const auto& kind) { return centileOf(kind, value); }, kind_);
}

std::optional<double> Population::valueAtZ(double z) const {
  return ifFinite(std::visit([z](const auto& kind) { return valueAt(kind, z); }, kind_));
}

std::optional<double> Population::valueAtCentile(double percent) const {
  return std::visit([percent](const auto& kind) { return valueOfCentile(kind, percent); }, kind_);
}

namespace {

template <std::size_t... Standards>
std::array<Reference, kReferenceCount> allReferences(std::index_sequence<Standards...>) {
  constexpr std::string_view kNormal =
      translatable("References", "Lengths measured as the publication has it; normal about the mean");
  return {
      {standardReference<Standards>(kNormal)...,
       curveReference<intergrowth2014Median, 14, 40, kLengths>(
           {.name = "intergrowth-2014",
            .label = "INTERGROWTH-21st (2014)",
            .form = ReferenceForm::meanAndSD,
            .assumes =
                translatable("References", "BPD measured from outer to outer edge; normal about the mean"),
            .population = intergrowth2014Population}),
       curveReference<intergrowth2020Median, 18, 41, kWeight>(
           {.name = "intergrowth-2020",
            .label = "INTERGROWTH-21st (2020)",
            .form = ReferenceForm::lms,
            .assumes = translatable("References",
                                    "Weight by the formula Hadlock 1 (HC/AC/FL); no other formula fits it"),
            .onlyFormula = 0,
            .population = intergrowth2020Population}),
       curveReference<hadlock1991Median, 10, 40, kWeight>(
           {.name = "hadlock-1991",
            .label = "Hadlock (1991)",
            .form = ReferenceForm::meanAndSD,
            .assumes = translatable(
                "References", "Weight normal about the mean, with a standard deviation of 13.27 % of it"),
            .population = hadlock1991Population}),
       curveReference<whoMedian, 14, 40, kQuantities>(
           {.name = "who-2017",
            .label = "WHO (2017)",
            .form = ReferenceForm::quantiles,
            .assumes = translatable("References",
                                    "No distribution: between the curves of eleven centiles linear in the "
                                    "value, beyond the 1st and the 99th unknown"),
            .population = whoPopulation})}};
}

}  // namespace

std::span<const Reference, kReferenceCount> references() {
  static const auto kReferences = allReferences(std::make_index_sequence<kGrowthStandardCount>());
  return kReferences;
}

const Reference* referenceOfStandard(std::int64_t standard) {
  return growthStandard(standard) ? &references()[static_cast<std::size_t>(standard)] : nullptr;
}

const Reference* referenceNamed(std::string_view name) {
  const auto all = references();
  const auto found = std::ranges::find(all, name, &Reference::name);
  return found != all.end() ? &*found : nullptr;
}

bool covers(const Reference& reference, Quantity quantity) {
  return std::ranges::find(reference.quantities, quantity) != reference.quantities.end();
}

bool reaches(const Reference& reference, double week) {
  return week >= reference.firstWeek && week <= reference.lastWeek;
}

std::optional<Population> populationAt(const Reference& reference, Quantity quantity, double week) {
  if (!covers(reference, quantity) || !reaches(reference, week)) return std::nullopt;
  return reference.population(quantity, week);
}

std::optional<double> weekOfMedian(const Reference& reference, Quantity quantity, double value) {
  if (!covers(reference, quantity)) return std::nullopt;
  return reference.weekOfMedian(quantity, value);
}

std::span<const double> whoCoefficients(Quantity quantity, std::size_t centile) {
  return kWHO.at(placeOf(quantity)).at(centile);
}

}  // namespace nascor::calc
