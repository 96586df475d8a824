// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys of the circular and hyperbolic functions, their inverses, angle conversions, and polar
// and rectangular coordinates. Each works on X (and Y) under ModifierMask and leaves its result
// in X under its label; a mask without a meaning leaves "XXX".
#pragma once

namespace tallyforge {

class Engine;

// Plain: the function of an angle in the user's unit. Shift: its inverse.
// An arc sine or arc cosine of a number beyond -1 to 1 shows a box and puts 0 on top of it.
void sine(Engine& calc);
void cosine(Engine& calc);
void tangent(Engine& calc);
void secant(Engine& calc);
void cotangent(Engine& calc);
void cosecant(Engine& calc);

// Plain, Shift inverse; Ctrl the reciprocal function, Shift+Ctrl its inverse. No angle unit.
void hyperbolicSine(Engine& calc);
void hyperbolicCosine(Engine& calc);
void hyperbolicTangent(Engine& calc);

/// Between radians, degrees and grads by mask, whatever the user's unit.
void convertAngle(Engine& calc);

/// Plain: Y is an angle, X a radius; leaves the jy and x components. Shift: Y is jy, X is x;
/// leaves angle and radius.
void polarRectangular(Engine& calc);

}  // namespace tallyforge
