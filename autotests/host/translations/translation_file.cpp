// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/translations/translation_file.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

void readMessage(QXmlStreamReader &xml, TranslationFile &file)
{
    QString key;
    Translation translation;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            translation.state = xml.attributes().value(QLatin1String("type")).toString();
            translation.text = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    if (file.translations.contains(key))
        file.repeatedKeys.append(key);
    file.translations.insert(key, translation);
}

void readContext(QXmlStreamReader &xml, TranslationFile &file)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            file.contexts.append(xml.readElementText());
        else if (xml.name() == QLatin1String("message"))
            readMessage(xml, file);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QString contextOf(const QString &part) { return part.toUpper(); }

TranslationFile readTranslationFile(const QString &part, const QString &code)
{
    TranslationFile file;
    QFile input(QStringLiteral(SOURCE_FOLDER "/host/translations/%1_%2.ts").arg(part, code));
    if (!input.open(QIODevice::ReadOnly)) {
        file.errorText = input.errorString();
        return file;
    }
    QXmlStreamReader xml(&input);
    xml.readNextStartElement();
    file.language = xml.attributes().value(QLatin1String("language")).toString();
    while (xml.readNextStartElement())
        readContext(xml, file);
    if (xml.hasError())
        file.errorText = xml.errorString();
    return file;
}
