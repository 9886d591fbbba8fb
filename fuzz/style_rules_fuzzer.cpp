// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "fuzz/style_reader.h"
#include "utils/style_colors.h"
#include "utils/style_rules.h"

using namespace ostra::utils;
using fuzz::require;

extern "C" int LLVMFuzzerInitialize(int *argumentCount, char ***arguments)
{
    fuzz::prepareStyleReader(*argumentCount, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    const QString sheet = QString::fromUtf8(fuzz::bytes(data, byteCount));
    const StyleRules rules = StyleRules::parse(sheet);
    const QString plain = rules.toText();
    require(StyleRules::parse(plain).toText() == plain, "a sheet that was written is read as it is");
    require(plain.size() <= 6 * sheet.size(), "what is read is not more than what stands there");
    for (const StyleRule &rule : rules.rules()) {
        for (const StyleDeclaration &declaration : rule.declarations()) {
            const QString colored = withColor(declaration.value, QStringLiteral("#123456"));
            require(withColor(colored, QStringLiteral("#123456")) == colored, "a value takes a colour once");
        }
    }
    require(fuzz::staysReadable(sheet, plain), "what Qt read before it still reads");
    return 0;
}
