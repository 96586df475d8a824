# Writes a C++ source that holds the bytes of FILE as `std::array` NAME in namespace tallyforge.
function(tallyforge_embed target file name)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(READ ${file} hex HEX)
  string(LENGTH "${hex}" length)
  math(EXPR count "${length} / 2")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
  file(CONFIGURE OUTPUT ${source} CONTENT
       "#include <array>\n#include <cstdint>\n#include <span>\nnamespace tallyforge {\nnamespace {\nconstexpr std::array<std::uint8_t, ${count}> kBytes{${bytes}};\n}\nstd::span<const std::uint8_t> ${name}() { return kBytes; }\n}\n")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  target_sources(${target} PRIVATE ${source})
endfunction()
