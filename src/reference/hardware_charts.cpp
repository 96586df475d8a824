// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/hardware_charts.h"

#include "numbers/number_format.h"

#include <algorithm>
#include <array>

namespace tallyforge {

namespace {

/// Number in the column with that head; 0 where there is none.
double numberAt(const CsvTable& table, const std::vector<std::string>& row, std::string_view head) {
    const auto column = table.column(head);
    return column ? tryReadNumber(row[*column], '.').value_or(0.0) : 0.0;
}

std::string textAt(const CsvTable& table, const std::vector<std::string>& row, std::string_view head) {
    const auto column = table.column(head);
    return column ? row[*column] : std::string();
}

std::vector<Piece> pieces(const CsvTable& table, std::string_view name, std::string_view threads = {}) {
    std::vector<Piece> made;
    for (const auto& row : table.rows) {
        made.push_back({.name = textAt(table, row, name),
                        .diameter = numberAt(table, row, "diameter_in"),
                        .length = numberAt(table, row, "length_in"),
                        .threadsPerInch = numberAt(table, row, threads)});
    }
    return made;
}

std::function<Drawing(ChosenRow)> nails(const CsvTable& table) {
    return [rows = pieces(table, "penny")](ChosenRow row) { return nailFigure(rows, row); };
}

std::function<Drawing(ChosenRow)> wires(const CsvTable& table) {
    return [rows = pieces(table, "gauge")](ChosenRow row) { return wireFigure(rows, row); };
}

std::function<Drawing(ChosenRow)> screws(const CsvTable& table) {
    return [rows = pieces(table, "number", "threads_per_in")](ChosenRow row) { return screwFigure(rows, row); };
}

std::function<Drawing(ChosenRow)> threads(const CsvTable& table) {
    std::vector<ThreadSize> sizes;
    for (const auto& row : table.rows) {
        sizes.push_back({.name = textAt(table, row, "size"),
                         .drillName = textAt(table, row, "tap_drill"),
                         .major = numberAt(table, row, "major_dia_in"),
                         .threadsPerInch = numberAt(table, row, "tpi"),
                         .drill = numberAt(table, row, "tap_drill_in")});
    }
    return [sizes](ChosenRow row) { return threadFigure(sizes, row); };
}

std::function<Drawing(ChosenRow)> pipes(const CsvTable& table) {
    std::vector<PipeThread> sizes;
    for (const auto& row : table.rows) {
        sizes.push_back({.name = textAt(table, row, "size"),
                         .outside = numberAt(table, row, "outside_dia_in"),
                         .threadsPerInch = numberAt(table, row, "tpi"),
                         .handTight = numberAt(table, row, "hand_tight_L1_in"),
                         .effective = numberAt(table, row, "effective_thread_L2_in")});
    }
    return [sizes](ChosenRow row) { return pipeFigure(sizes, row); };
}

constexpr HardwareColumn kNails[] = {{"penny", "Size", {}, false},
                                     {"length_in", "Length", "in"},
                                     {"gauge", "Gauge"},
                                     {"diameter_in", "Diameter", "in"},
                                     {"count_per_lb", "Count", "n/lb"}};
constexpr HardwareColumn kWires[] = {
    {"gauge", "Gauge", {}, false}, {"diameter_in", "Diameter", "in"}, {"common_nails", "Common nails", {}, false}};
constexpr HardwareColumn kScrews[] = {{"number", "No.", {}, false},
                                      {"diameter_in", "Diameter", "in"},
                                      {"threads_per_in", "Threads", "/in"},
                                      {"shank_hole_fraction", "Shank hole", "in", false},
                                      {"shank_drill", "Drill", {}, false},
                                      {"shank_drill_in", "Shank", "in"},
                                      {"pilot_hard_drill", "Hard wood", {}, false},
                                      {"pilot_hard_in", "Pilot", "in"},
                                      {"pilot_soft_drill", "Soft wood", {}, false},
                                      {"pilot_soft_in", "Pilot", "in"}};
constexpr HardwareColumn kPipes[] = {
    {"size", "Size", "in", false},          {"outside_dia_in", "Outside", "in"}, {"tpi", "Threads", "/in"},
    {"pitch_dia_E0_in", "E0", "in"},        {"hand_tight_L1_in", "L1", "in"},    {"pitch_dia_E1_in", "E1", "in"},
    {"effective_thread_L2_in", "L2", "in"}, {"minor_dia_K0_in", "K0", "in"},     {"tap_drill", "Tap drill", {}, false},
    {"tap_drill_in", "Tap drill", "in"},    {"alt_drill", "Or", {}, false},      {"alt_drill_in", "Or", "in"}};
constexpr HardwareColumn kThreads[] = {{"size", "Size", {}, false},         {"major_dia_in", "Major dia", "in"},
                                       {"tpi", "Threads", "/in"},           {"tap_drill", "Tap drill", {}, false},
                                       {"tap_drill_in", "Tap drill", "in"}, {"thread_percent", "Thread", "%"}};

constexpr std::string_view kDoubleClickTap = "Double-click a size to put its tap drill in the x-register.";

const std::array<HardwareChart, 6> kCharts{{
    {.id = ChartId::Nails,
     .form = "frmNails",
     .title = "Common Smooth Shank Nails",
     .file = "nails_smooth_shank.csv",
     .columns = kNails,
     .chief = "count_per_lb",
     .label = "n/lb",
     .note = "Double-click a size to put its count in a pound in the x-register.",
     .source = "Sizes: ASTM F1667, Steel Wire Gauge; counts: shop charts.",
     .figure = nails,
     .helpTopic = 3011},
    {.id = ChartId::SteelWire,
     .form = "frmWireNails",
     .title = "Steel Wire Gauge",
     .file = "steel_wire_gauge.csv",
     .columns = kWires,
     .chief = "diameter_in",
     .label = "dia(in)",
     .note = "Double-click a gauge to put its diameter in the x-register.",
     .source = "US Steel Wire Gauge (Washburn and Moen).",
     .figure = wires,
     .helpTopic = 3005},
    {.id = ChartId::WoodScrews,
     .form = "frmWS",
     .title = "Wood Screw Dimensions and Pilot Drills",
     .file = "wood_screws.csv",
     .columns = kScrews,
     .chief = "diameter_in",
     .label = "dia(in)",
     .note = "Double-click a screw to put its diameter in the x-register.",
     .source = "Diameters: ASME B18.6.1; drills: shop charts.",
     .figure = screws,
     .helpTopic = 3023},
    {.id = ChartId::PipeThreads,
     .form = "frmASP",
     .title = "American Standard Pipe Threads",
     .file = "pipe_threads_npt.csv",
     .columns = kPipes,
     .chief = "tap_drill_in",
     .label = "tap(in)",
     .note = "E0 pitch diameter at the end of the pipe, E1 at the length L1 of hand-tight engagement; L2 effective "
             "thread; K0 minor diameter at the end. Double-click a size to put its tap drill in the x-register.",
     .source = "ANSI/ASME B1.20.1; drills without taper reamer: shop charts.",
     .figure = pipes,
     .helpTopic = 3022},
    {.id = ChartId::FineThreads,
     .form = "frmUNF",
     .title = "UNF Threads and Tap Drills",
     .file = "tap_drills_unf.csv",
     .columns = kThreads,
     .chief = "tap_drill_in",
     .label = "tap(in)",
     .note = kDoubleClickTap,
     .source = "ASME B1.1, Unified Fine series; drills for about 75 percent of thread.",
     .figure = threads,
     .helpTopic = 3006},
    {.id = ChartId::CoarseThreads,
     .form = "frmUNC",
     .title = "UNC Threads and Tap Drills",
     .file = "tap_drills_unc.csv",
     .columns = kThreads,
     .chief = "tap_drill_in",
     .label = "tap(in)",
     .note = kDoubleClickTap,
     .source = "ASME B1.1, Unified Coarse series; drills for about 75 percent of thread.",
     .figure = threads,
     .helpTopic = 3018},
}};

}  // namespace

std::span<const HardwareChart> hardwareCharts() {
    return kCharts;
}

const HardwareChart& hardwareChart(ChartId id) {
    return *std::find_if(kCharts.begin(), kCharts.end(), [id](const HardwareChart& chart) { return chart.id == id; });
}

}  // namespace tallyforge
