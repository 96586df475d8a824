// SPDX-License-Identifier: GPL-3.0-or-later
//
// Who clears what it remembers after a Reset: each function that keeps inputs between presses has
// a bit of FunctionResetMask. Reset sets all of them, and a function takes its own when it runs next.
#pragma once

#include <cstdint>

namespace tallyforge {

enum class ResetBit : std::uint32_t {
    None = 0,
    BoardFeet = 1,
    Dates = 1U << 4U,
    RightTriangle = 1U << 9U,
    ParallelResistors = 1U << 10U,
    Triangle = 1U << 11U,
    Quiz = 1U << 12U,
    // The bit that the impedance once shared with the triangles lost inputs of whichever came second.
    ParallelImpedance = 1U << 13U,
    ChebyshevFilter = 1U << 14U,
    CoreLoss = 1U << 17U,
    FerriteLoss = 1U << 18U,
    FluxCapacity = 1U << 19U,
    PermeabilityAtFlux = 1U << 20U,
    PermeabilityUnderField = 1U << 21U,
    MeanTurn = 1U << 22U,
    Solenoid = 1U << 23U,
    ButterworthFilter = 1U << 24U,
    Statistics = 1U << 25U,
    VoltSeconds = 1U << 26U,
    Quality = 1U << 27U,
    SupplyCapacitor = 1U << 28U,
    FilterScaling = 1U << 29U,
    PermeabilityByLo = 1U << 30U,
    All = 0x7FFFFFFF,
};

}  // namespace tallyforge
