# SPDX-License-Identifier: Apache-2.0
# cmake -D SHEET=in.qss -D OUTPUT=out.cpp -D ICON_SUFFIX=svg|png -P embed_stylesheet.cmake
# Writes the sheet as a C++ constant: without its comments, which are for us and would trip a reader that splits the sheet at its
# braces, and with every icon named by the suffix that the target can draw.

file(READ "${SHEET}" sheet)
if(sheet MATCHES "[^\t\r\n -~]")
    message(FATAL_ERROR "${SHEET}: only ASCII may stand in the sheet, it is cut by bytes")
endif()
string(REPLACE "\r" "" sheet "${sheet}")
string(REGEX REPLACE "/\\*[^*]*\\*+([^/*][^*]*\\*+)*/" "" sheet "${sheet}")
string(REGEX REPLACE "[ \t]+\n" "\n" sheet "${sheet}")
string(REGEX REPLACE "\n\n+" "\n" sheet "${sheet}")
string(REGEX REPLACE "^\n+" "" sheet "${sheet}")
string(REPLACE ".svg\"" ".${ICON_SUFFIX}\"" sheet "${sheet}")

# One literal may hold 16 KB with some compilers; adjacent ones are joined.
set(chunk_bytes 8000)
string(LENGTH "${sheet}" total)
set(literals "")
set(position 0)
while(position LESS total)
    string(SUBSTRING "${sheet}" ${position} ${chunk_bytes} chunk)
    string(APPEND literals "\n    R\"qss(${chunk})qss\"")
    math(EXPR position "${position} + ${chunk_bytes}")
endwhile()

file(WRITE "${OUTPUT}" "// SPDX-License-Identifier: Apache-2.0
#include \"host/style/product_stylesheet.h\"

namespace ostra::utils::style_manager {

std::string_view productStylesheet()
{
    static constexpr std::string_view sheet =${literals};
    return sheet;
}

} // namespace ostra::utils::style_manager
")
