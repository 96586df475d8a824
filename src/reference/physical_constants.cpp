// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/physical_constants.h"

#include "reference/codata.h"

#include <algorithm>
#include <array>

namespace tallyforge {

namespace {

// Spellings and digits are the list's own; names are in code page 437.
constexpr std::array<ListRow, 42> kConstants{{
    {"Avogadro constant, N_A", "6.022169e26", "1/kmol"},
    {"Bohr magneton, æ_B"_t, "9.274096e-24", "J/T"},
    {"Bohr radius, ao", "5.2917715e-11", "m"},
    {"Boltzmann constant, k", "1.380622e-23", "J/øK"_t},
    {"classical electron radius, r_e", "2.817939e-15", "m"},
    {"Compton wavelength of electron, l_c", "2.4263096e-12", "m"},
    {"Compton wavelength of proton, l_c,p", "1.3214409e-15", "m"},
    {"Compton wavelength of neutron, l_c,n", "1.3196217e-15", "m"},
    {"Distance earth to moon (mean)", "384407907.84", "m"},
    {"Distance earth to sun (mean), AU", "149597870700", "m"},
    {"Earth density (mean)", "5.522", "g/cu cm"},
    {"Earth diameter (equatorial)", "6.378388e6", "m"},
    {"Earth diameter (polar)", "6.356912e6", "m"},
    {"Earth mass", "5.983e24", "kg"},
    {"Electron charge, e", "1.6021917e-19", "C"},
    {"Electron charge to mass ratio, e/me", "1.7588028e11", "C/kg"},
    {"Electron magnetic moment, æ_e"_t, "9.284851e-24", "J/T"},
    {"Electron rest mass, m_e", "9.109558e-31", "kg"},
    {"Faraday constant, F", "9.648670e7", "C/kmol"},
    {"Fine structure constant, à"_t, "7.297351e-3", ""},
    {"First radiation constant, 2ãhcý"_t, "3.741844e-16", "Wmý"_t},
    {"Free fall acceleration (std), ff(g)", "9.80665", "m/sý"_t},
    {"Gas constant, R", "8.31434e3", "J/(kmoløK)"_t},
    {"Gauss, g", "1e-4", "T"},
    {"Gyromagnetic ratio of protons, ç'_p"_t, "2.675127e8", "rad/(sT)"},
    {"Magnetic flux quantum, è_o"_t, "2.0678538e-15", "Wb"},
    {"Maxwell, M", "1e-8", "Wb"},
    {"Neutron rest mass, m_n", "1.674920e-27", "kg"},
    {"Nuclear magneton, æ_n"_t, "5.050951e-27", "J/T"},
    {"Permeability of free space, æo"_t, "1.256637061435916e-06", "H/m"},
    {"Permittivity of free space, îo"_t, "8.854185e-12", "F/m"},
    {"Planck constant, h", "6.626196e-34", "Js"},
    {"Proton magnetic moment, æ_p"_t, "1.4106203e-26", "J/T"},
    {"Proton rest mass, m_p", "1.672614e-27", "kg"},
    {"Quantum of circulation, h/m_e", "7.273894e-4", "J s/kg"},
    {"Rydberg constant, R_ì"_t, "1.09737312e7", "1/m"},
    {"Second radiation constant, hc/k", "1.438833e-2", "m øK"_t},
    {"Speed of light in vacuum, c", "2.997925e8", "m/s"},
    {"Stefan-Boltzmann constant, å"_t, "5.66961e-8", "W/(mý øK^4)"_t},
    {"tesla, T", "1", "Wb/mý"_t},
    {"Unufied atomic mass unit, u", "1.660531e-27", "kg"},
    {"Volume of ideal gas, std.cond., V_o", "2.24136e1", "m^3/kmol"},
}};

constexpr std::string_view kSymbolMark = ", ";

}  // namespace

const ListTable kConstantsList{.form = "frmConstants",
                               .title = "Physical Constants",
                               .valueHead = "Value",
                               .unitHead = "Units",
                               .rows = kConstants,
                               .face = Face::Terminal,
                               .helpTopic = 1416};

const std::string_view kConstantSources =
    "Values of the list: CODATA adjustment of 1969 and handbooks of its time. "
    "CODATA: recommended values of 2022; exact ones follow from the SI of 2019.";

std::string_view constantName(std::string_view name) {
    return name.substr(0, name.rfind(kSymbolMark));
}

std::string_view constantSymbol(std::string_view name) {
    const auto mark = name.rfind(kSymbolMark);
    return mark == name.npos ? std::string_view{} : name.substr(mark + kSymbolMark.size());
}

std::optional<OtherValue> valueOfToday(std::size_t row) {
    const std::string_view name = constantName(kConstants.at(row).name);
    const auto rows = codataRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const CodataRow& known) { return known.constant == name; });
    if (found == rows.end()) {
        return std::nullopt;
    }
    return OtherValue{.value = found->value, .spread = found->uncertainty};
}

}  // namespace tallyforge
