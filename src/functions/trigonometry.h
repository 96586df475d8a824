// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of the circular and hyperbolic functions, their inverses, angle conversions, and polar
// and rectangular coordinates. Each works on X (and Y) and leaves its result in X under its label.
#pragma once

namespace tallyforge {

class Engine;

// Functions of an angle in the user's unit, and their inverses. An arc sine or arc cosine of a number
// beyond -1 to 1 shows a box and puts 0 on top of it.
void sine(Engine& calc);
void arcSine(Engine& calc);
void cosine(Engine& calc);
void arcCosine(Engine& calc);
void tangent(Engine& calc);
void arcTangent(Engine& calc);
void secant(Engine& calc);
void arcSecant(Engine& calc);
void cotangent(Engine& calc);
void arcCotangent(Engine& calc);
void cosecant(Engine& calc);
void arcCosecant(Engine& calc);

// No angle unit.
void hyperbolicSine(Engine& calc);
void arcHyperbolicSine(Engine& calc);
void hyperbolicSecant(Engine& calc);
void arcHyperbolicSecant(Engine& calc);
void hyperbolicTangent(Engine& calc);
void arcHyperbolicTangent(Engine& calc);
void hyperbolicCotangent(Engine& calc);
void arcHyperbolicCotangent(Engine& calc);
void hyperbolicCosine(Engine& calc);
void arcHyperbolicCosine(Engine& calc);
void hyperbolicCosecant(Engine& calc);
void arcHyperbolicCosecant(Engine& calc);

// Whatever the user's unit.
void showRadiansToDegrees(Engine& calc);
void showDegreesToRadians(Engine& calc);
void showDegreesToGrads(Engine& calc);
void showGradsToDegrees(Engine& calc);
void showRadiansToGrads(Engine& calc);
void showGradsToRadians(Engine& calc);

/// Y is an angle, X a radius; leaves the jy and x components.
void polarToRectangular(Engine& calc);
/// Y is jy, X is x; leaves angle and radius.
void rectangularToPolar(Engine& calc);

}  // namespace tallyforge
