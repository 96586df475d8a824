# Compiler options that every target of ours is built with.
add_library(tallyforge_options INTERFACE)
target_include_directories(tallyforge_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tallyforge_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
if(TALLYFORGE_SANITIZE)
  target_compile_options(tallyforge_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tallyforge_options INTERFACE -fsanitize=address,undefined)
endif()
