// SPDX-License-Identifier: GPL-3.0-or-later
//
// The data of the charts agrees with the rules that the sizes were made by, and with other tables.
#include "platform/file_store.h"
#include "reference/csv.h"
#include "reference/hardware_charts.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <map>

namespace tallyforge {
namespace {

/// Number drills #1 to #80, inches.
constexpr std::array<double, 80> kNumberDrills{
    0.2280, 0.2210, 0.2130, 0.2090, 0.2055, 0.2040, 0.2010, 0.1990, 0.1960, 0.1935, 0.1910, 0.1890, 0.1850, 0.1820,
    0.1800, 0.1770, 0.1730, 0.1695, 0.1660, 0.1610, 0.1590, 0.1570, 0.1540, 0.1520, 0.1495, 0.1470, 0.1440, 0.1405,
    0.1360, 0.1285, 0.1200, 0.1160, 0.1130, 0.1110, 0.1100, 0.1065, 0.1040, 0.1015, 0.0995, 0.0980, 0.0960, 0.0935,
    0.0890, 0.0860, 0.0820, 0.0810, 0.0785, 0.0760, 0.0730, 0.0700, 0.0670, 0.0635, 0.0595, 0.0550, 0.0520, 0.0465,
    0.0430, 0.0420, 0.0410, 0.0400, 0.0390, 0.0380, 0.0370, 0.0360, 0.0350, 0.0330, 0.0320, 0.0310, 0.0292, 0.0280,
    0.0260, 0.0250, 0.0240, 0.0225, 0.0210, 0.0200, 0.0180, 0.0160, 0.0145, 0.0135};
/// Letter drills A to Z, inches.
constexpr std::array<double, 26> kLetterDrills{0.234, 0.238, 0.242, 0.246, 0.250, 0.257, 0.261, 0.266, 0.272,
                                               0.277, 0.281, 0.290, 0.295, 0.302, 0.316, 0.323, 0.332, 0.339,
                                               0.348, 0.358, 0.368, 0.377, 0.386, 0.397, 0.404, 0.413};

double number(std::string_view text) {
    double value = std::nan("");
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// "1 9/64" as a number.
double fraction(std::string_view text) {
    const auto blank = text.find(' ');
    if (blank != text.npos) {
        return number(text.substr(0, blank)) + fraction(text.substr(blank + 1));
    }
    const auto bar = text.find('/');
    return bar == text.npos ? number(text) : number(text.substr(0, bar)) / number(text.substr(bar + 1));
}

/// Diameter of a drill by its number, letter or fraction.
double drill(std::string_view name) {
    if (name.starts_with('#')) {
        return kNumberDrills.at(static_cast<std::size_t>(number(name.substr(1))) - 1);
    }
    if (name.size() == 1 && name.front() >= 'A' && name.front() <= 'Z') {
        return kLetterDrills.at(static_cast<std::size_t>(name.front() - 'A'));
    }
    return fraction(name);
}

class Data {
public:
    explicit Data(std::string_view file) {
        const auto path = std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data" / "charts" / file;
        table = readCsv(readWhole(path)).value();
    }
    [[nodiscard]] std::string text(std::size_t row, std::string_view head) const {
        return table.rows.at(row).at(table.column(head).value());
    }
    [[nodiscard]] double at(std::size_t row, std::string_view head) const { return number(text(row, head)); }
    [[nodiscard]] std::size_t rows() const { return table.rows.size(); }

    CsvTable table;
};

TEST(ChartData, EveryFileNamesItsSourceAndHasTheColumnsOfItsChart) {
    const std::map<std::string_view, std::size_t> rows{{"frmNails", 16}, {"frmWireNails", 57}, {"frmWS", 18},
                                                       {"frmASP", 14},   {"frmUNF", 24},       {"frmUNC", 33}};
    ASSERT_EQ(hardwareCharts().size(), rows.size());
    for (const HardwareChart& chart : hardwareCharts()) {
        const Data data(chart.file);
        EXPECT_FALSE(data.table.source.empty()) << chart.form;
        EXPECT_EQ(data.rows(), rows.at(chart.form)) << chart.form;
        EXPECT_TRUE(data.table.column(chart.chief)) << chart.form;
        EXPECT_EQ(chart.columns.front().source, data.table.heads.front()) << chart.form;
        for (const HardwareColumn& column : chart.columns) {
            ASSERT_TRUE(data.table.column(column.source)) << column.source;
            for (std::size_t row = 0; column.number && row < data.rows(); ++row) {
                EXPECT_TRUE(std::isfinite(data.at(row, column.source))) << chart.form << " " << column.source;
            }
        }
    }
}

TEST(ChartData, NailsWeighWhatTheirSteelDoes) {
    const Data nails("nails_smooth_shank.csv");
    constexpr double kPoundsPerCubicInch = 0.2836;
    const double pi = std::acos(-1.0);
    for (std::size_t row = 0; row < nails.rows(); ++row) {
        const double d = nails.at(row, "diameter_in");
        const double weight = pi / 4 * d * d * nails.at(row, "length_in") * kPoundsPerCubicInch;
        EXPECT_NEAR(nails.at(row, "count_per_lb") * weight, 1.0, 0.045) << nails.text(row, "penny");
        if (row != 0) {
            EXPECT_GT(nails.at(row, "length_in"), nails.at(row - 1, "length_in"));
        }
    }
}

TEST(ChartData, NailsHaveTheDiametersOfTheirWire) {
    const Data nails("nails_smooth_shank.csv");
    const Data wires("steel_wire_gauge.csv");
    std::map<double, double> diameter;
    for (std::size_t row = 0; row < wires.rows(); ++row) {
        diameter[wires.at(row, "index")] = wires.at(row, "diameter_in");
        if (row != 0) {
            EXPECT_LT(wires.at(row, "diameter_in"), wires.at(row - 1, "diameter_in"));
            EXPECT_EQ(wires.at(row, "index"), wires.at(row - 1, "index") + 1);
        }
    }
    for (std::size_t row = 0; row < nails.rows(); ++row) {
        const double gauge = nails.at(row, "gauge");
        const double below = std::floor(gauge);
        const double part = gauge - below;
        const double expected = diameter.at(below) + part * (diameter.at(below + 1) - diameter.at(below));
        EXPECT_NEAR(nails.at(row, "diameter_in"), expected, 0.0006) << nails.text(row, "penny");
    }
}

TEST(ChartData, WoodScrewsGrowByThirteenMilsANumber) {
    const Data screws("wood_screws.csv");
    for (std::size_t row = 0; row < screws.rows(); ++row) {
        EXPECT_NEAR(screws.at(row, "diameter_in"), 0.060 + 0.013 * screws.at(row, "number"), 1e-9);
        EXPECT_NEAR(drill(screws.text(row, "shank_drill")), screws.at(row, "shank_drill_in"), 6e-5);
        EXPECT_NEAR(drill(screws.text(row, "pilot_hard_drill")), screws.at(row, "pilot_hard_in"), 6e-5);
        EXPECT_NEAR(drill(screws.text(row, "pilot_soft_drill")), screws.at(row, "pilot_soft_in"), 6e-5);
        EXPECT_NEAR(fraction(screws.text(row, "shank_hole_fraction")), screws.at(row, "diameter_in"), 0.013);
    }
}

TEST(ChartData, TapDrillsAreTheDrillsThatTheyAreCalled) {
    for (const char* file : {"tap_drills_unf.csv", "tap_drills_unc.csv"}) {
        const Data taps(file);
        for (std::size_t row = 0; row < taps.rows(); ++row) {
            EXPECT_NEAR(drill(taps.text(row, "tap_drill")), taps.at(row, "tap_drill_in"), 6e-5) << file << row;
            const std::string size = taps.text(row, "size");
            const double major =
                size.starts_with('#') ? 0.060 + 0.013 * number(std::string_view(size).substr(1)) : fraction(size);
            EXPECT_NEAR(major, taps.at(row, "major_dia_in"), 1e-9) << size;
            const double height = (taps.at(row, "major_dia_in") - taps.at(row, "tap_drill_in")) * taps.at(row, "tpi");
            EXPECT_NEAR(height / 1.299038 * 100, taps.at(row, "thread_percent"), 0.51) << size;
            EXPECT_GT(taps.at(row, "thread_percent"), 60.0);
            EXPECT_LT(taps.at(row, "thread_percent"), 85.0);
        }
    }
}

TEST(ChartData, PipeThreadsFollowTheRulesOfTheirStandard) {
    const Data pipes("pipe_threads_npt.csv");
    for (std::size_t row = 0; row < pipes.rows(); ++row) {
        const double d = pipes.at(row, "outside_dia_in");
        const double tpi = pipes.at(row, "tpi");
        const double e0 = d - (0.05 * d + 1.1) / tpi;
        EXPECT_NEAR(pipes.at(row, "pitch_dia_E0_in"), e0, 1e-5);
        EXPECT_NEAR(pipes.at(row, "pitch_dia_E1_in"), e0 + pipes.at(row, "hand_tight_L1_in") / 16, 2e-5);
        EXPECT_NEAR(pipes.at(row, "effective_thread_L2_in"), (0.8 * d + 6.8) / tpi, 6e-5);
        EXPECT_NEAR(pipes.at(row, "minor_dia_K0_in"), e0 - 0.8 / tpi, 6e-5);
        EXPECT_NEAR(drill(pipes.text(row, "tap_drill")), pipes.at(row, "tap_drill_in"), 6e-5);
        EXPECT_NEAR(drill(pipes.text(row, "alt_drill")), pipes.at(row, "alt_drill_in"), 6e-5);
        EXPECT_NEAR(pipes.at(row, "tap_drill_in"), pipes.at(row, "minor_dia_K0_in"), 0.017);
    }
}

}  // namespace
}  // namespace tallyforge
