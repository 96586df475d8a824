// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of power. The calorie and the Btu are thermochemical, but for refrigeration.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"ft lb/hr", "ft-lb/h", 0.0003766161, kFootPound / 3600, "foot pound-force, per hour", Source::Nist811,
     "foot-pound per hour|ft lbf/h|ftlb/h"},
    {"lusec", "lus", 0.000133322368421, kTorr * 1e-6L, "liter times micrometer of mercury, per second", Source::Nist811,
     "lusecs"},
    {"ft lb/min", "ft-lb/m", 0.022596966, kFootPound / 60, "foot pound-force, per minute", Source::Nist811,
     "foot-pound per minute|ft lbf/min|ftlb/min"},
    {"calore/min", "cal/m", 0.069733333, kCalorie / 60, "thermochemical calorie, per minute", Source::Nist811,
     "calorie per minute|calorie/min|cal/min"},
    {"watt", "W", 1, 1, "joule per second", Source::SiBrochure, "watts|J/s|joule per second"},
    {"ft lb/sec", "ft-lb/s", 1.3558179, kFootPound, "foot pound-force, per second", Source::Nist811,
     "foot-pound per second|ft lbf/s|ftlb/s"},
    {"calore/sec", "cal/s", 4.184, kCalorie, "thermochemical calorie, per second", Source::Nist811,
     "calorie per second|calorie/sec|cal/sec"},
    {"Btu/min", "Btu/m", 17.572504, kBtu / 60, "thermochemical Btu, per minute", Source::Nist811,
     "British thermal unit per minute|Btu/min"},
    {"kcal/min", "kcal/m", 69.9733333, kCalorie * 1000 / 60, "thermochemical kilocalorie, per minute", Source::Nist811,
     "kilocalorie per minute|kcal/min"},
    {"hp (metric)", "hp.m", 735.499, 75 * kGravity, "75 kilogram-force meters per second", Source::Nist811,
     "metric horsepower|PS|cv|hp metric|pferdestarke"},
    {"550 ft lb/sec", "550ft-lb/s", 745.69987, 550 * kFootPound, "550 foot pounds-force per second", Source::Nist811,
     "550 ft lbf/s|mechanical horsepower"},
    {"horse power", "hp", 745.69987, 550 * kFootPound, "550 foot pounds-force per second", Source::Nist811,
     "horsepower|HP"},
    {"hp (UK)", "hp.uk", 745.7, 550 * kFootPound, "550 foot pounds-force per second", Source::Nist811,
     "UK horsepower|hp uk|British horsepower|imperial horsepower"},
    {"hp (electric)", "hp.e", 746, 746, "746 watts", Source::Nist811, "electric horsepower|hp electric"},
    {"hp (water)", "hp.w", 746.043, 746.043L, "746.043 watts", Source::Nist811, "water horsepower|hp water"},
    {"Btu/sec", "Btu/s", 1054.350264488, kBtu, "thermochemical Btu, per second", Source::Nist811,
     "British thermal unit per second|Btu/s"},
    {"tons of refrig.", "tor", 3516.85284206667, 12000 * kBtuIt / 3600, "12000 International Table Btu per hour",
     Source::Nist811, "ton of refrigeration|tons of refrigeration|refrigeration ton|RT"},
    {"kcal/sec", "kcal/s", 4184, kCalorie * 1000, "thermochemical kilocalorie, per second", Source::Nist811,
     "kilocalorie per second|kcal/s"},
    {"hp(boiler)", "hp.b", 9809.5, 9809.5L, "9809.50 watts", Source::Nist811, "boiler horsepower|hp boiler|BHP"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptPower", .heading = "Power", .base = "W", .units = kUnits},
};

}  // namespace

const ConversionTable kPowerTable{
    .key = key::PowerUnits,
    .form = "frmPower",
    .title = "Convert Power",
    .groups = kGroups,
};

}  // namespace tallyforge
