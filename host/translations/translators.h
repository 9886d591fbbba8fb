// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>

namespace host {

/// Language codes that translations exist for, in the order in which a user is offered them.
inline constexpr std::array<QLatin1StringView, 9> translationCodes = {
    QLatin1StringView("pt_BR"), QLatin1StringView("en_US"), QLatin1StringView("es_ES"),
    QLatin1StringView("fr_FR"), QLatin1StringView("it_IT"), QLatin1StringView("de_DE"),
    QLatin1StringView("nl_NL"), QLatin1StringView("zh_CN"), QLatin1StringView("ja_JP"),
};

/// Makes the compiled files known to this program: below ":/translations". `installTranslators` does so itself.
void registerTranslations();

/// Puts the texts of the module (context "AUDIO") and of the graphical host (context "HOST") into force in the language `code`,
/// in place of those of an earlier call. A code without translations stands for "en_US". False when a file cannot be loaded;
/// whatever could be is in force then. `folder` has the compiled files, those of this program by default.
///
/// The toolkit's own texts (file dialog, message boxes, names of keys) come along where they are installed: beside the program
/// in "translations", or in the toolkit's folder.
///
/// Needs a QCoreApplication, which owns the translators; on its thread only. Its windows get a QEvent::LanguageChange.
bool installTranslators(const QString &code, const QString &folder = QStringLiteral(":/translations"));

/// Whether the toolkit's texts are installed in that language. English needs none.
bool hasToolkitTexts(const QString &code);

} // namespace host
