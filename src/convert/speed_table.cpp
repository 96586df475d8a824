// SPDX-License-Identifier: GPL-3.0-or-later
//
// Speed and acceleration.
#include "convert/conversion_tables.h"
#include "convert/exact_sizes.h"
#include "platform/text.h"

namespace tallyforge {

namespace {

using namespace exact;

constexpr Unit kAcceleration[] = {
    {"kilometers per hour²"_t, "km/h²"_t, 7.716049382716e-05, 1000.0L / 3600 / 3600, "kilometer per hour squared",
     Source::SiBrochure, "km/h2|kilometer per hour squared"},
    {"millimeters per second²"_t, "mm/s²"_t, 0.001, 1e-3L, "millimeter per second squared", Source::SiBrochure,
     "mm/s2|millimeter per second squared"},
    {"centimeters per second²"_t, "cm/s²"_t, 0.01, 1e-2L, "centimeter per second squared", Source::SiBrochure,
     "cm/s2|centimeter per second squared"},
    {"galileo", "gal", 0.01, 1e-2L, "centimeter per second squared", Source::Nist811, "galileos|Gal"},
    {"inches per seconds²"_t, "in/s²"_t, 0.0254, kInch, "inch per second squared", Source::Nist811,
     "in/s2|inch per second squared|inches per second²"_t},
    {"feet per seconds²"_t, "ft/s²"_t, 0.3048, kFoot, "foot per second squared", Source::Nist811,
     "ft/s2|foot per second squared|feet per second²|fps2"_t},
    {"meters per seconds²"_t, "m/s²"_t, 1, 1, "meter per second squared", Source::SiBrochure,
     "m/s2|meter per second squared|meters per second²"_t},
    {"grav", "g", 9.80665, kGravity, "standard gravity, 9.80665 meters per second squared", Source::Nist811,
     "gravity|gravities|gee|standard gravity|gn"},
    {"kilometers per second²"_t, "km/s²"_t, 1000, 1000, "kilometer per second squared", Source::SiBrochure,
     "km/s2|kilometer per second squared"},
    {"miles per second²"_t, "mi/s²"_t, 1609.344, kMile, "statute mile per second squared", Source::Nist811,
     "mi/s2|mile per second squared"},
};

constexpr Unit kSpeed[] = {
    {"feet per hour", "ft/hr", 8.4666666e-05, kFoot / 3600, "foot per hour", Source::Nist811, "foot per hour|ft/h|fph"},
    {"millimeters per second", "mm/s", 0.001, 1e-3L, "millimeter per second", Source::SiBrochure,
     "millimeter per second|mm/sec"},
    {"feet per minute", "ft/min", 0.00508, kFoot / 60, "foot per minute", Source::Nist811,
     "foot per minute|fpm|ft/minute"},
    {"centimeters per second", "cm/s", 0.01, 1e-2L, "centimeter per second", Source::SiBrochure,
     "centimeter per second|cm/sec"},
    {"inches per second", "in/s", 0.0254, kInch, "inch per second", Source::Nist811, "inch per second|ips|in/sec"},
    {"kilometers per hour", "km/hr", 0.27777778, 1000.0L / 3600, "kilometer per hour", Source::SiBrochure,
     "km/h|kph|kilometer per hour|kmh"},
    {"feet per second", "ft/s", 0.3048, kFoot, "foot per second", Source::Nist811, "foot per second|fps|ft/sec"},
    {"miles per hour", "mph", 0.44704, kMile / 3600, "statute mile per hour", Source::Nist811,
     "mile per hour|mi/h|mi/hr"},
    {"nautical miles per hour", "knots", 0.5144444444, 1852.0L / 3600, "nautical mile per hour", Source::Nist811,
     "knot|kn|kt|nautical mile per hour|kts"},
    {"meters per second", "m/s", 1, 1, "meter per second", Source::SiBrochure,
     "meter per second|metres per second|m/sec"},
    {"miles per minute", "mi/min", 26.8224, kMile / 60, "statute mile per minute", Source::Nist811,
     "mile per minute|mpm"},
    {"kilometers per second", "km/s", 1000, 1000, "kilometer per second", Source::SiBrochure,
     "kilometer per second|km/sec"},
    {"miles per second", "mi/s", 1609.344, kMile, "statute mile per second", Source::Nist811,
     "mile per second|mps|mi/sec"},
    {"light-seconds per hour", "l-s/h", 83275.68277777778, kLight / 3600, "light's way in a second, per hour",
     Source::SiBrochure, "light-second per hour|ls/h"},
};

constexpr UnitGroup kGroups[] = {
    {.options = "OptAccel", .heading = "Acceleration", .base = "m/s^2", .units = kAcceleration},
    {.options = "OptSpeed", .heading = "Speed", .base = "m/s", .units = kSpeed},
};

}  // namespace

const ConversionTable kSpeedTable{
    .key = key::Speed,
    .form = "frmSpdAndAccel",
    .title = "Convert Speed and Acceleration",
    .groups = kGroups,
};

}  // namespace tallyforge
