// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the files lie that came with the calculator.
#pragma once

#include "platform/platform.h"

#include <filesystem>
#include <string_view>

namespace tallyforge {

/// The file `name` of the folder `folder` ("charts") that came with the calculator: beside the
/// executable, or where it was installed. The path where it should be, where it is at neither.
[[nodiscard]] std::filesystem::path installedFile(const Platform& platform, std::string_view folder,
                                                  std::string_view name);

}  // namespace tallyforge
