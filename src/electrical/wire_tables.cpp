// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wire_tables.h"

#include <array>

namespace tallyforge {

namespace {

/// A half size by the whole size below it.
std::string halfSize(int base) {
    return std::to_string(base) + ".5";
}

constexpr std::array<TableRow, 64> kSingleRows{
    {{-3, 0.4726},  {-2, 0.4217},  {-1, 0.3764}, {0, 0.3361},   {1, 0.3002},    {2, 0.2682},    {3, 0.2397},
     {4, 0.2093},   {5, 0.1867},   {6, 0.1665},  {7, 0.1485},   {8, 0.1324},    {9, 0.1181},    {10, 0.1054},
     {11, 0.0941},  {12, 0.084},   {13, 0.075},  {14, 0.0666},  {15, 0.0594},   {16, 0.0531},   {17, 0.0475},
     {18, 0.0424},  {19, 0.0379},  {20, 0.0339}, {21, 0.0303},  {22, 0.027},    {23, 0.0243},   {24, 0.0217},
     {25, 0.0194},  {26, 0.0173},  {27, 0.0156}, {28, 0.014},   {29, 0.0126},   {30, 0.0112},   {31, 0.01},
     {32, 0.0091},  {33, 0.0081},  {34, 0.0072}, {35, 0.0064},  {36, 0.0058},   {37, 0.0052},   {38, 0.0047},
     {39, 0.0041},  {40, 0.0037},  {41, 0.0033}, {42, 0.003},   {43, 0.0026},   {44, 0.0024},   {45, 0.00205},
     {46, 0.00185}, {47, 0.0017},  {48, 0.0015}, {49, 0.0013},  {50, 0.0012},   {51, 0.0011},   {52, 0.001},
     {53, 0.00085}, {54, 0.00075}, {55, 0.0007}, {56, 0.00065}, {57, 0.000557}, {58, 0.000507}, {59, 0.000442},
     {60, 0.000402}}};

constexpr std::array<TableRow, 64> kHeavyRows{
    {{-3, 0.4726},  {-2, 0.4217},  {-1, 0.3764},  {0, 0.3361},   {1, 0.3002},    {2, 0.2682},    {3, 0.2397},
     {4, 0.2098},   {5, 0.1872},   {6, 0.1671},   {7, 0.1491},   {8, 0.1332},    {9, 0.1189},    {10, 0.1061},
     {11, 0.0948},  {12, 0.0847},  {13, 0.0757},  {14, 0.0682},  {15, 0.0609},   {16, 0.0545},   {17, 0.0488},
     {18, 0.0437},  {19, 0.0391},  {20, 0.0351},  {21, 0.0314},  {22, 0.0281},   {23, 0.0253},   {24, 0.0227},
     {25, 0.0203},  {26, 0.0182},  {27, 0.0164},  {28, 0.0147},  {29, 0.0133},   {30, 0.0119},   {31, 0.0108},
     {32, 0.0098},  {33, 0.0088},  {34, 0.0078},  {35, 0.007},   {36, 0.0063},   {37, 0.0057},   {38, 0.0051},
     {39, 0.0045},  {40, 0.004},   {41, 0.0036},  {42, 0.0032},  {43, 0.0029},   {44, 0.0027},   {45, 0.0023},
     {46, 0.0021},  {47, 0.0019},  {48, 0.0017},  {49, 0.0015},  {50, 0.0014},   {51, 0.00129},  {52, 0.00115},
     {53, 0.00103}, {54, 0.00095}, {55, 0.00087}, {56, 0.00081}, {57, 0.000557}, {58, 0.000507}, {59, 0.000442},
     {60, 0.000402}}};

constexpr std::array<TableRow, 50> kTripleRows{
    {{4, 0.2125},   {5, 0.1898},   {6, 0.1696},   {7, 0.1515},  {8, 0.1355},  {9, 0.1211},  {10, 0.1083}, {11, 0.0969},
     {12, 0.0867},  {13, 0.0776},  {14, 0.07},    {15, 0.0627}, {16, 0.0562}, {17, 0.0504}, {18, 0.0452}, {19, 0.0406},
     {20, 0.0364},  {21, 0.0326},  {22, 0.0293},  {23, 0.0264}, {24, 0.0238}, {25, 0.0214}, {26, 0.0193}, {27, 0.0173},
     {28, 0.0156},  {29, 0.0142},  {30, 0.0128},  {31, 0.0114}, {32, 0.0103}, {33, 0.0092}, {34, 0.0082}, {35, 0.0074},
     {36, 0.0067},  {37, 0.006},   {38, 0.0054},  {39, 0.0048}, {40, 0.0043}, {41, 0.0039}, {42, 0.0035}, {43, 0.0032},
     {44, 0.0029},  {45, 0.00255}, {46, 0.00235}, {47, 0.0021}, {48, 0.0019}, {49, 0.0017}, {50, 0.0016}, {51, 0.0015},
     {52, 0.00138}, {53, 0.00121}}};

constexpr std::array<TableRow, 50> kQuadRows{
    {{4, 0.2148},  {5, 0.1914},  {6, 0.1706},  {7, 0.1525},  {8, 0.1365},  {9, 0.1221},  {10, 0.1098}, {11, 0.0983},
     {12, 0.0881}, {13, 0.0793}, {14, 0.0714}, {15, 0.064},  {16, 0.0574}, {17, 0.0516}, {18, 0.0464}, {19, 0.0418},
     {20, 0.0377}, {21, 0.034},  {22, 0.0306}, {23, 0.0277}, {24, 0.025},  {25, 0.0226}, {26, 0.0204}, {27, 0.0185},
     {28, 0.0167}, {29, 0.0151}, {30, 0.0138}, {31, 0.0125}, {32, 0.0112}, {33, 0.0101}, {34, 0.0091}, {35, 0.0082},
     {36, 0.0074}, {37, 0.0067}, {38, 0.006},  {39, 0.0054}, {40, 0.0049}, {41, 0.0044}, {42, 0.0039}, {43, 0.0036},
     {44, 0.0032}, {45, 0.0029}, {46, 0.0026}, {47, 0.0023}, {48, 0.0021}, {49, 0.0019}, {50, 0.0018}, {51, 0.0017},
     {52, 0.0016}, {53, 0.00139}}};

constexpr std::array<TableRow, 64> kWeightRows{
    {{-3, 640.5},      {-2, 507.8},      {-1, 402.8},      {0, 319.5},      {1, 253.3},      {2, 200.9},
     {3, 159.3},       {4, 126.3},       {5, 100.2},       {6, 79.44},      {7, 63.03},      {8, 49.98},
     {9, 39.62},       {10, 31.43},      {11, 24.9},       {12, 19.76},     {13, 15.69},     {14, 12.44},
     {15, 9.869},      {16, 7.812},      {17, 6.212},      {18, 4.916},     {19, 3.901},     {20, 3.1},
     {21, 2.459},      {22, 1.938},      {23, 1.546},      {24, 1.223},     {25, 0.9699},    {26, 0.7652},
     {27, 0.6104},     {28, 0.4806},     {29, 0.3865},     {30, 0.3027},    {31, 0.2398},    {32, 0.1937},
     {33, 0.1526},     {34, 0.1201},     {35, 0.09493},    {36, 0.07567},   {37, 0.0613},    {38, 0.04843},
     {39, 0.03708},    {40, 0.02909},    {41, 0.02373},    {42, 0.01892},   {43, 0.01465},   {44, 0.01211},
     {45, 0.009376},   {46, 0.007461},   {47, 0.005933},   {48, 0.004654},  {49, 0.00373},   {50, 0.002967},
     {51, 0.002344},   {52, 0.001842},   {53, 0.001483},   {54, 0.001164},  {55, 0.0009157}, {56, 0.0007268},
     {57, 0.00058082}, {58, 0.00046061}, {59, 0.00036528}, {60, 0.00028968}}};

constexpr std::array<TableRow, 47> kHalfOhmsRows{
    {{4, 0.000278},  {5, 0.000351},  {6, 0.000442},  {7, 0.0005591}, {8, 0.0007049}, {9, 0.0008891}, {10, 0.001121},
     {11, 0.001415}, {12, 0.001781}, {13, 0.002249}, {14, 0.002833}, {15, 0.00357},  {16, 0.004501}, {17, 0.005688},
     {18, 0.007182}, {19, 0.009024}, {20, 0.01137},  {21, 0.01433},  {22, 0.01816},  {23, 0.02286},  {24, 0.02873},
     {25, 0.03631},  {26, 0.04609},  {27, 0.05776},  {28, 0.07324},  {29, 0.0923},   {30, 0.1149},   {31, 0.147},
     {32, 0.1844},   {33, 0.231},    {34, 0.2979},   {35, 0.3692},   {36, 0.4695},   {37, 0.5879},   {38, 0.7576},
     {39, 0.9523},   {40, 1.152},    {41, 1.534},    {42, 1.801},    {43, 2.352},    {44, 2.873},    {45, 3.764},
     {46, 4.735},    {47, 5.952},    {48, 7.576},    {49, 9.407},    {50, 11.99}}};

constexpr std::array<TableRow, 37> kHalfSingleRows{
    {{14, 0.0629},  {15, 0.0562}, {16, 0.0502}, {17, 0.0449},  {18, 0.0401}, {19, 0.0358}, {20, 0.032},  {21, 0.0286},
     {22, 0.0256},  {23, 0.023},  {24, 0.0206}, {25, 0.0183},  {26, 0.0165}, {27, 0.0148}, {28, 0.0133}, {29, 0.0119},
     {30, 0.0106},  {31, 0.0096}, {32, 0.0086}, {33, 0.0076},  {34, 0.0068}, {35, 0.0061}, {36, 0.0055}, {37, 0.005},
     {38, 0.0044},  {39, 0.0039}, {40, 0.0035}, {41, 0.0031},  {42, 0.0028}, {43, 0.0025}, {44, 0.0022}, {45, 0.00195},
     {46, 0.00178}, {47, 0.0016}, {48, 0.0014}, {49, 0.00125}, {50, 0.00115}}};

constexpr std::array<TableRow, 47> kHalfHeavyRows{
    {{4, 0.1982},  {5, 0.1769},  {6, 0.1578},  {7, 0.1409},  {8, 0.1258},  {9, 0.1123},   {10, 0.1003}, {11, 0.0896},
     {12, 0.0801}, {13, 0.0719}, {14, 0.0644}, {15, 0.0576}, {16, 0.0516}, {17, 0.0462},  {18, 0.0413}, {19, 0.037},
     {20, 0.0332}, {21, 0.0297}, {22, 0.0267}, {23, 0.024},  {24, 0.0215}, {25, 0.0193},  {26, 0.0173}, {27, 0.0156},
     {28, 0.014},  {29, 0.0126}, {30, 0.0113}, {31, 0.0103}, {32, 0.0093}, {33, 0.0083},  {34, 0.0074}, {35, 0.0067},
     {36, 0.006},  {37, 0.0054}, {38, 0.0048}, {39, 0.0043}, {40, 0.0038}, {41, 0.0034},  {42, 0.003},  {43, 0.0028},
     {44, 0.0025}, {45, 0.0022}, {46, 0.002},  {47, 0.0018}, {48, 0.0016}, {49, 0.00145}, {50, 0.00135}}};

constexpr std::array<TableRow, 37> kAluminumRows{
    {{8, 0.001013}, {9, 0.001278}, {10, 0.001611}, {11, 0.00203}, {12, 0.00256}, {13, 0.00323}, {14, 0.00407},
     {15, 0.00513}, {16, 0.00648}, {17, 0.00815},  {18, 0.0103},  {19, 0.013},   {20, 0.0163},  {21, 0.02059},
     {22, 0.02613}, {23, 0.03275}, {24, 0.0414},   {25, 0.05221}, {26, 0.06617}, {27, 0.08296}, {28, 0.1054},
     {29, 0.131},   {30, 0.1673},  {31, 0.2112},   {32, 0.2614},  {33, 0.3318},  {34, 0.4215},  {35, 0.5334},
     {36, 0.6691},  {37, 0.826},   {38, 1.045},    {39, 1.366},   {40, 1.741},   {41, 2.134},   {42, 2.676},
     {43, 3.456},   {44, 4.182}}};

constexpr LookupTable kSingleFilm{
    .name = "wire-single",
    .title = "Largest diameter of magnet wire over single film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "NEMA MW 1000 (17 to 50 from two or more published tables that agree, 51 to 56 from one); 0000 to 16 "
        "and 57 to 60 are the calculator's own rows, 57 to 60 and 0000 to 3 the same as in the heavy column",
    .rows = kSingleRows,
    .sizeText = gaugeSize};

constexpr LookupTable kHeavyFilm{
    .name = "wire-heavy",
    .title = "Largest diameter of magnet wire over heavy film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "the calculator's own rows, all 64: NEMA MW 1000 but for 0000 to 3 and 57 to 60, which stand as in "
        "the single column, and 51, published as 0.0013",
    .rows = kHeavyRows,
    .sizeText = gaugeSize};

constexpr LookupTable kTripleFilm{
    .name = "wire-triple",
    .title = "Largest diameter of magnet wire over triple film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "NEMA MW 1000 for 14 to 44 (24 to 44 from two published tables, 14 to 23 from one); 4 is the "
        "calculator's own end; 5 to 13 interpolated (within 0.0008 in); 45 and 46 published by vendors, 47 to"
        " 53 the mean of heavy and quad, all nine for the way from a diameter to a gauge alone",
    .rows = kTripleRows,
    .sizeText = gaugeSize};

constexpr LookupTable kQuadFilm{
    .name = "wire-quad",
    .title = "Largest diameter of magnet wire over quadruple film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "a vendor's published table for 6 to 53 (another vendor lists up to 1 percent more for 14 to 26 and "
        "up to 9 percent less for 31 to 44); 4 is the calculator's own end; 5 interpolated; 45 to 53 for the "
        "way from a diameter to a gauge alone",
    .rows = kQuadRows,
    .sizeText = gaugeSize};

}  // namespace

const LookupTable kCopperWeight{
    .name = "wire-weight",
    .title = "Weight of bare copper wire",
    .sizes = "AWG",
    .unit = "lb/1000ft",
    .source =
        "0000 to 7 and 60 are the calculator's own rows; 8 to 56 are 0.00302697 (nominal mils)^2, copper of "
        "8.89 g/cm3, which gives 0000 to 7 and the published values of 8 to 35 to their last digit; 57 to 59 "
        "scaled from 60 by 92^(2/39) a size",
    .rows = kWeightRows,
    .sizeText = gaugeSize};

const LookupTable kHalfSizeOhms{
    .name = "half-size-ohms",
    .title = "Resistance of half-size copper wire at 20 C",
    .sizes = "AWG",
    .unit = "ohm/ft",
    .source =
        "4.5 to 6.5, 49.5 and 50.5 are the calculator's own rows; the others are 10.371 / (mils)^2 of the "
        "published nominal diameter, which is 0.005 * 92^((36 - AWG) / 39) in; 4.5 to 6.5 lie 0.3 percent "
        "below that and are kept",
    .rows = kHalfOhmsRows,
    .sizeText = halfSize};

const LookupTable kHalfSizeSingle{
    .name = "half-size-single",
    .title = "Largest diameter of half-size magnet wire over single film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "a published NEMA MW 1000 table of half sizes for 24.5 to 49.5; 14.5 to 23.5 and 50.5 are the "
        "geometric mean of the whole sizes (within 0.0002 in)",
    .rows = kHalfSingleRows,
    .sizeText = halfSize};

const LookupTable kHalfSizeHeavy{
    .name = "half-size-heavy",
    .title = "Largest diameter of half-size magnet wire over heavy film",
    .sizes = "AWG",
    .unit = "in",
    .source =
        "a published NEMA MW 1000 table of half sizes for 24.5 to 49.5; 4.5 to 23.5 and 50.5 are the "
        "geometric mean of the whole sizes (within 0.0002 in)",
    .rows = kHalfHeavyRows,
    .sizeText = halfSize};

const LookupTable kAluminumOhms{
    .name = "aluminum-ohms",
    .title = "Resistance of aluminum magnet wire at 20 C",
    .sizes = "AWG",
    .unit = "ohm/ft",
    .source =
        "10 to 20 and 44 are the calculator's own rows; 16.7274 / (nominal mils)^2, aluminum of 62 percent "
        "IACS, gives them to their last digit, and 8, 9 and 21 to 43 are computed by it",
    .rows = kAluminumRows,
    .sizeText = gaugeSize};

const LookupTable& filmDiameters(WireBuild build) {
    switch (build) {
        case WireBuild::Single:
            return kSingleFilm;
        case WireBuild::Heavy:
            return kHeavyFilm;
        case WireBuild::Triple:
            return kTripleFilm;
        case WireBuild::Quad:
            break;
    }
    return kQuadFilm;
}

}  // namespace tallyforge
