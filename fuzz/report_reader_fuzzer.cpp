// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "host/reports/report_formats.h"

#include <QXmlStreamReader>

#include <algorithm>

using namespace host;
using fuzz::require;

namespace {

bool isWellFormed(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

bool isPlain(const QByteArray &text)
{
    const QString letters = QString::fromUtf8(text);
    return std::none_of(letters.begin(), letters.end(), [](QChar letter) {
        return letter.category() == QChar::Other_Control && letter != u'\n' && letter != u'\t';
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    const auto read = readReport(fuzz::bytes(data, byteCount));
    if (const auto *error = std::get_if<ReportError>(&read)) {
        require(!error->message.isEmpty() && !error->message.contains(u'\n'), "a complaint is one line");
        return 0;
    }
    const auto &report = std::get<QJsonObject>(read);
    const QByteArray json = convertReport(report, ReportFormat::json);
    const auto again = readReport(json);
    const auto *same = std::get_if<QJsonObject>(&again);
    require(same != nullptr && convertReport(*same, ReportFormat::json) == json, "a report survives its way");
    require(isWellFormed(convertReport(report, ReportFormat::junit)), "JUnit is well-formed XML");
    require(isWellFormed(convertReport(report, ReportFormat::html)), "HTML is well-formed XML");
    require(isPlain(convertReport(report, ReportFormat::text)), "no text steers a terminal");
    return 0;
}
