# SPDX-License-Identifier: Apache-2.0
# cmake -D SCHEMA=in.json -D OUTPUT=out.cpp -P embed_schema.cmake
# Writes the published schema as a C++ constant, so that what the reader takes is what the document says.

file(READ "${SCHEMA}" schema)
if(schema MATCHES "[^\t\r\n -~]")
    message(FATAL_ERROR "${SCHEMA}: only ASCII may stand in the schema, it is cut by bytes")
endif()
string(REGEX REPLACE "\r?\n *" "\n" schema "${schema}")

# One literal may hold 16 KB with some compilers; adjacent ones are joined.
set(chunk_bytes 8000)
string(LENGTH "${schema}" total)
set(literals "")
set(position 0)
while(position LESS total)
    string(SUBSTRING "${schema}" ${position} ${chunk_bytes} chunk)
    string(APPEND literals "\n    R\"json(${chunk})json\"")
    math(EXPR position "${position} + ${chunk_bytes}")
endwhile()

file(WRITE "${OUTPUT}" "// SPDX-License-Identifier: Apache-2.0
#include \"host/reports/report_schema.h\"

namespace host {

std::string_view reportSchemaText()
{
    static constexpr std::string_view schema =${literals};
    return schema;
}

} // namespace host
")
