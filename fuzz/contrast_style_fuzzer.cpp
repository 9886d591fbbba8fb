// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "fuzz/style_reader.h"
#include "utils/high_contrast_style.h"
#include "utils/style_rules.h"

using namespace ostra::utils;
using fuzz::require;

namespace {

QList<QColor> systemColors()
{
    QList<QColor> colors(30, Qt::white);
    for (int index = 0; index < colors.size(); ++index)
        colors[index] = QColor(index, 10, 20);
    return colors;
}

// Reading the dialogs' own rules again and again would take most of the time.
QString withoutRulesOf(const StyleRules &rules, const StyleRules &known)
{
    QString text;
    for (const StyleRule &rule : rules.rules()) {
        if (known.contains(rule.selector()))
            continue;
        StyleRules single;
        for (const StyleDeclaration &declaration : rule.declarations())
            single.rule(rule.selector()).set(declaration.property, declaration.value);
        text += single.toText();
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argumentCount, char ***arguments)
{
    fuzz::prepareStyleReader(*argumentCount, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    static const QList<QColor> colors = systemColors();
    static const QString own = highContrastStyleSheet(QString(), colors, {});
    static const StyleRules ownRules = StyleRules::parse(own);
    const QString sheet = QString::fromUtf8(fuzz::bytes(data, byteCount));

    qsizetype iconCount = 0;
    const auto recolour = [&iconCount](const QString &, const QString &color) {
        ++iconCount;
        return QStringLiteral("url(\"/a {};'/%1.svg\")").arg(color.mid(1));
    };
    const QString result = highContrastStyleSheet(sheet, colors, recolour);
    // A selector, a comma and four states of it in rules of their own; sixteen groups of selectors at most repeat a
    // declaration.
    require(result.size() - own.size() <= 160 * sheet.size(), "the result grows with the sheet, not with its square");
    require(iconCount <= sheet.size(), "icons are those of the sheet");

    const StyleRules read = StyleRules::parse(result);
    require(read.toText() == result, "the result is read as it was written");
    for (const StyleRule &rule : ownRules.rules())
        require(read.contains(rule.selector()), "no input takes the dialogs' own rules away");
    require(fuzz::staysReadable(sheet, withoutRulesOf(read, ownRules)), "what Qt read before it still reads");
    return 0;
}
