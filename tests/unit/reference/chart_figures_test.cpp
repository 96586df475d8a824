// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/chart_figures.h"
#include "platform/file_store.h"
#include "reference/colour_code.h"
#include "reference/csv.h"
#include "reference/hardware_charts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>

namespace tallyforge {
namespace {

/// What a shape covers.
struct Extent {
    float left = std::numeric_limits<float>::max();
    float top = std::numeric_limits<float>::max();
    float right = std::numeric_limits<float>::lowest();
    float bottom = std::numeric_limits<float>::lowest();

    void take(DrawnPoint point) {
        left = std::min(left, point.x);
        top = std::min(top, point.y);
        right = std::max(right, point.x);
        bottom = std::max(bottom, point.y);
    }
};

Extent extentOf(const DrawnShape& shape) {
    Extent extent;
    if (const auto* line = std::get_if<DrawnLine>(&shape)) {
        extent.take(line->from);
        extent.take(line->to);
    } else if (const auto* box = std::get_if<DrawnRectangle>(&shape)) {
        extent.take(box->topLeft);
        extent.take({box->topLeft.x + box->width, box->topLeft.y + box->height});
    } else if (const auto* arc = std::get_if<DrawnArc>(&shape)) {
        extent.take({arc->centre.x - arc->radius, arc->centre.y - arc->radius});
        extent.take({arc->centre.x + arc->radius, arc->centre.y + arc->radius});
    } else if (const auto* polyline = std::get_if<DrawnPolyline>(&shape)) {
        for (const DrawnPoint& point : polyline->points) {
            extent.take(point);
        }
    } else if (const auto* text = std::get_if<DrawnText>(&shape)) {
        extent.take(text->at);
    }
    return extent;
}

void expectInside(const Drawing& drawing) {
    EXPECT_GT(drawing.shapes.size(), 5U);
    EXPECT_FALSE(drawing.described.empty());
    for (const DrawnShape& shape : drawing.shapes) {
        const Extent extent = extentOf(shape);
        EXPECT_GE(extent.left, 0.0F) << drawing.described;
        EXPECT_GE(extent.top, 0.0F) << drawing.described;
        EXPECT_LE(extent.right, drawing.width) << drawing.described;
        EXPECT_LE(extent.bottom, drawing.height) << drawing.described;
    }
}

template <typename Shape>
std::vector<Shape> all(const Drawing& drawing) {
    std::vector<Shape> found;
    for (const DrawnShape& shape : drawing.shapes) {
        if (const auto* one = std::get_if<Shape>(&shape)) {
            found.push_back(*one);
        }
    }
    return found;
}

CsvTable tableOf(const HardwareChart& chart) {
    const auto path = std::filesystem::path(TALLYFORGE_SOURCE_ROOT) / "data" / "charts" / chart.file;
    return readCsv(readWhole(path)).value();
}

TEST(ChartFigures, EveryRowOfEveryChartIsDrawnInsideItsPicture) {
    for (const HardwareChart& chart : hardwareCharts()) {
        const CsvTable table = tableOf(chart);
        const auto figure = chart.figure(table);
        expectInside(figure(std::nullopt));
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            expectInside(figure(row));
        }
    }
}

TEST(ChartFigures, NailsAreDrawnToOneScale) {
    const std::vector<Piece> nails{{.name = "2d", .diameter = 0.1, .length = 1.0},
                                   {.name = "60d", .diameter = 0.3, .length = 6.0}};
    const auto shanks = all<DrawnPolyline>(nailFigure(nails, std::nullopt));
    ASSERT_EQ(shanks.size(), 2U);
    const Extent little = extentOf(shanks[0]);
    const Extent big = extentOf(shanks[1]);
    EXPECT_NEAR((big.bottom - big.top) / (little.bottom - little.top), 6.0, 1e-3);
    EXPECT_NEAR((big.right - big.left) / (little.right - little.left), 3.0, 1e-3);
    EXPECT_NEAR((little.bottom - little.top) / (little.right - little.left), 10.0, 1e-2);
    EXPECT_EQ(little.bottom, big.bottom);
}

TEST(ChartFigures, WiresAreCirclesOfTheirDiameters) {
    const std::vector<Piece> wires{{.name = "1", .diameter = 0.4}, {.name = "9", .diameter = 0.1}};
    const auto circles = all<DrawnArc>(wireFigure(wires, std::nullopt));
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_NEAR(circles[0].radius / circles[1].radius, 4.0, 1e-3);
    EXPECT_LT(circles[0].centre.x + circles[0].radius, circles[1].centre.x - circles[1].radius);
}

TEST(ChartFigures, TheDrillLineOfAThreadStandsAtItsDepth) {
    // A hole as wide as the thread has none of it; one narrower by the basic profile has it all.
    const std::vector<ThreadSize> threads{
        {.name = "none", .drillName = "x", .major = 0.25, .threadsPerInch = 20, .drill = 0.25},
        {.name = "all", .drillName = "y", .major = 0.25, .threadsPerInch = 20, .drill = 0.25 - 1.0825 / 20}};
    const auto depth = [&](std::size_t row) {
        const Drawing drawing = threadFigure(threads, row);
        const auto profile = all<DrawnPolyline>(drawing).at(0);
        const auto line = all<DrawnLine>(drawing).at(0);
        float inner = profile.points.at(0).y;
        for (std::size_t point = 0; point + 2 < profile.points.size(); ++point) {
            inner = std::max(inner, profile.points[point].y);
        }
        return (line.from.y - profile.points.at(0).y) / (inner - profile.points.at(0).y);
    };
    EXPECT_NEAR(depth(0), 0.0, 1e-3);
    EXPECT_NEAR(depth(1), 1.0, 1e-3);
}

TEST(ChartFigures, FlanksOfAThreadStandAtSixtyDegrees) {
    const std::vector<ThreadSize> threads{
        {.name = "1/4", .drillName = "#7", .major = 0.25, .threadsPerInch = 20, .drill = 0.201}};
    const auto points = all<DrawnPolyline>(threadFigure(threads, 0)).at(0).points;
    const float run = points.at(2).x - points.at(1).x;
    const float fall = points.at(2).y - points.at(1).y;
    EXPECT_NEAR(std::atan2(run, fall) * 180.0 / std::acos(-1.0), 30.0, 0.01);
}

TEST(ChartFigures, TheChosenRowStandsOut) {
    const std::vector<Piece> nails{{.name = "2d", .diameter = 0.1, .length = 1.0},
                                   {.name = "60d", .diameter = 0.3, .length = 6.0}};
    const auto shanks = all<DrawnPolyline>(nailFigure(nails, 1));
    EXPECT_EQ(shanks.at(0).edge.ink, Ink::Plain);
    EXPECT_EQ(shanks.at(1).edge.ink, Ink::Accent);
}

std::string valueShown(const Drawing& drawing) {
    return drawing.described.substr(drawing.described.find(": ") + 2);
}

TEST(ColourCode, BandsFollowTheColoursThatAreClickedOneAfterTheOther) {
    const Chart chart = colourChart();
    EXPECT_EQ(valueShown(chart.figure(std::nullopt)), "4.7 kohm, 5 %");
    expectInside(chart.figure(std::nullopt));
    EXPECT_EQ(valueShown(chart.figure(1)), "1.7 kohm, 5 %");
    EXPECT_EQ(valueShown(chart.figure(0)), "1 kohm, 5 %");
    EXPECT_EQ(valueShown(chart.figure(5)), "1 Mohm, 5 %");
    EXPECT_EQ(valueShown(chart.figure(2)), "1 Mohm, 2 %");
    EXPECT_EQ(valueShown(chart.figure(9)), "9 Mohm, 2 %");
}

TEST(ColourCode, GoldTakesAZeroOffAndIsNoDigit) {
    const Chart chart = colourChart();
    chart.figure(4);
    chart.figure(7);
    EXPECT_EQ(valueShown(chart.figure(10)), "4.7 ohm, 5 %");
    chart.figure(0);
    EXPECT_EQ(valueShown(chart.figure(10)), "no such resistor");
}

TEST(ColourCode, ColoursStandInTheOrderOfTheirNumbersWithTheirWords) {
    const std::string_view colours[] = {"Black", "Brown",  "Red",  "Orange", "Yellow", "Green",
                                        "Blue",  "Violet", "Grey", "White",  "Gold"};
    const std::string_view words[] = {"Bad", "Boys",   "Razz", "Our",      "Young",  "Girls",
                                      "But", "Violet", "Gets", "Wrathful", "- Gosh!"};
    const Chart chart = colourChart();
    ASSERT_EQ(chart.rows.size(), std::size(colours));
    for (std::size_t row = 0; row < chart.rows.size(); ++row) {
        EXPECT_EQ(chart.rows[row].cells.at(0), colours[row]);
        EXPECT_EQ(chart.rows[row].cells.at(1), words[row]);
        EXPECT_EQ(chart.rows[row].label, colours[row]);
        EXPECT_EQ(chart.rows[row].value, row < 10 ? std::to_string(row) : "-1");
    }
}

}  // namespace
}  // namespace tallyforge
