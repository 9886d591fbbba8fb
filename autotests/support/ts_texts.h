// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QTranslator>
#include <QXmlStreamReader>

/// The texts of one translation source file, as the host shows them. Installed while it lives.
class TsTexts final : public QTranslator {
public:
    explicit TsTexts(const QString &path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            read(file);
        QCoreApplication::installTranslator(this);
    }
    ~TsTexts() override { QCoreApplication::removeTranslator(this); }

    qsizetype count() const { return texts_.size(); }
    bool isEmpty() const override { return texts_.isEmpty(); }
    QString translate(const char *context, const char *key, const char * /*note*/, int /*count*/) const override
    {
        return QLatin1StringView(context) == u"AUDIO" ? texts_.value(QString::fromUtf8(key)) : QString();
    }

private:
    void read(QFile &file)
    {
        QXmlStreamReader reader(&file);
        QString key;
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == u"source")
                key = reader.readElementText();
            else if (reader.name() == u"translation")
                texts_.insert(key, reader.readElementText());
        }
    }

    QHash<QString, QString> texts_;
};
