// SPDX-License-Identifier: GPL-3.0-or-later
//
// Units of time. The last three have no factor in the table: they convert a number into itself.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kUnits[] = {
    {"femtosecond", "fs", 1e-15, 1e-15L, "1e-15 second", Source::SiBrochure, "femtoseconds"},
    {"picosecond", "ps", 1e-12, 1e-12L, "1e-12 second", Source::SiBrochure, "picoseconds"},
    {"nanosecond", "ns", 1e-09, 1e-9L, "1e-9 second", Source::SiBrochure, "nanoseconds"},
    {"shake", "sh", 1e-08, 1e-8L, "10 nanoseconds", Source::Nist811, "shakes"},
    {"microsecond", "µs"_t, 1e-06, 1e-6L, "1e-6 second", Source::SiBrochure, "microseconds|us"},
    {"millisecond", "ms", 0.001, 1e-3L, "1e-3 second", Source::SiBrochure, "milliseconds|msec"},
    {"second (sr)", "s.sr", 0.99726957, kSiderealDay / 86400, "1/86400 sidereal day", Source::Iau,
     "sidereal second|sidereal seconds|second sidereal"},
    {"second", "s", 1, 1, "base unit", Source::SiBrochure, "seconds|sec"},
    {"minute (sr)", "min.sr", 59.836174, kSiderealDay / 1440, "1/1440 sidereal day", Source::Iau,
     "sidereal minute|sidereal minutes|minute sidereal"},
    {"minute", "min", 60, 60, "60 seconds", Source::SiBrochure, "minutes"},
    {"hour (sr)", "hr.sr", 3590.1704, kSiderealDay / 24, "1/24 sidereal day", Source::Iau,
     "sidereal hour|sidereal hours|hour sidereal"},
    {"hour", "hr", 3600, 3600, "60 minutes", Source::SiBrochure, "hours|h|hrs"},
    {"day (sr)", "d.sr", 86164.09, kSiderealDay, "turn of the Earth against the mean equinox", Source::Iau,
     "sidereal day|sidereal days|day sidereal"},
    {"day", "d", 86400, 86400, "24 hours", Source::SiBrochure, "days"},
    {"week", "wk", 604800, 604800, "7 days", Source::SiBrochure, "weeks|w"},
    {"fortnight", "fn", 1209600, 1209600, "14 days", Source::OldMeasure, "fortnights"},
    {"mean month", "mon", kNoFactor, kGregorianYear / 12, "1/12 of the mean Gregorian year", Source::OldMeasure,
     "month|months|mean months|mo"},
    {"calander year", "yr", kNoFactor, kGregorianYear, "mean Gregorian year, 365.2425 days", Source::OldMeasure,
     "calendar year|year|years|calendar years|y|annum"},
    {"year (sr)", "yr.sr", kNoFactor, kSiderealYear, "turn of the Earth against the stars, 365.256363004 days",
     Source::Iau, "sidereal year|sidereal years|year sidereal"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptTime", .heading = "Time", .base = "s", .units = kUnits},
};

}  // namespace

const ConversionTable kTimeTable{
    .key = key::Time,
    .form = "frmTime",
    .title = "Convert Time",
    .groups = kGroups,
};

}  // namespace tallyforge
