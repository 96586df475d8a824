// SPDX-License-Identifier: GPL-3.0-or-later
//
// Owns the precompiled headers of all tests; it has no code of its own.
