// SPDX-License-Identifier: Apache-2.0
#include "host/reports/html_report.h"

#include "host/reports/digit_plots.h"
#include "host/reports/report_view.h"

#include <QXmlStreamWriter>

namespace host {

namespace {

// No character that would have to be escaped: a browser takes this text as it stands.
constexpr const char *style = R"(
body { font: 16px/1.45 system-ui, sans-serif; color: #111; background: #fff; max-width: 60rem; margin: 1.5rem auto; padding: 0 1rem }
h1 { font-size: 1.6rem } h2 { font-size: 1.2rem; border-bottom: 1px solid #767676; margin-top: 2rem } h3 { font-size: 1rem }
.verdict { display: inline-block; font-weight: bold; font-size: 1.2rem; padding: .3rem .9rem; border: 3px solid; border-radius: .3rem }
.code0 { color: #0b5a1e } .code1 { color: #9b1111 } .other { color: #6b4a00 }
table { border-collapse: collapse; font-size: .9rem } caption { text-align: left; font-weight: bold; padding: .3rem 0 }
th, td { border: 1px solid #8a8a8a; padding: .2rem .5rem; text-align: left; vertical-align: top; overflow-wrap: anywhere }
th { overflow-wrap: normal }
.digits th, .digits td { text-align: right; overflow-wrap: normal; padding: .25em } .digits { font-size: .8rem }
.scroll { overflow-x: auto }
figure { margin: 1rem 0; break-inside: avoid } figcaption { font-weight: bold } svg { width: 100%; max-width: 40rem; height: auto }
svg text { font: 11px system-ui, sans-serif; fill: #111 } .grid { stroke: #c8c8c8 } .data { fill: #1f5a94 }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1rem }
@media (max-width: 45rem) { .pair { display: block } }
@media print { @page { margin: 15mm } body { font-size: 10pt; margin: 0; padding: 0; max-width: none }
 h2, h3 { break-after: avoid } tr, li { break-inside: avoid } .digits { font-size: 7pt } .digits th, .digits td { padding: .2em }
 .data { print-color-adjust: exact } }
)";

class Page {
public:
    explicit Page(const QJsonObject &report) : report_(report), view_(report), xml_(&bytes_) {}

    QByteArray write()
    {
        xml_.writeDTD(QStringLiteral("<!DOCTYPE html>"));
        open("html");
        attribute("lang", QStringLiteral("en"));
        writeHead();
        open("body");
        open("main");
        writeBody();
        xml_.writeEndDocument();
        return bytes_ + '\n';
    }

private:
    void open(const char *element) { xml_.writeStartElement(QLatin1String(element)); }
    void close() { xml_.writeEndElement(); }
    void attribute(const char *name, const QString &value) { xml_.writeAttribute(QLatin1String(name), value); }
    void element(const char *name, const QString &text) { xml_.writeTextElement(QLatin1String(name), text); }

    void writeHead()
    {
        open("head");
        open("meta");
        attribute("charset", QStringLiteral("utf-8"));
        close();
        open("meta");
        attribute("name", QStringLiteral("viewport"));
        attribute("content", QStringLiteral("width=device-width, initial-scale=1"));
        close();
        element("title", QStringLiteral("%1: %2").arg(view_.verdictName(), view_.deviceName()));
        element("style", QLatin1String(style));
        close();
    }

    void writeBody()
    {
        open("h1");
        xml_.writeCharacters(QStringLiteral("Audio test report: "));
        xml_.writeCharacters(view_.testName());
        if (const QString name = view_.translatedTestName(); !name.isEmpty()) {
            xml_.writeCharacters(QStringLiteral(" \u2013 "));
            translated("span", name);
        }
        close();
        writeVerdict();
        for (const QJsonValue warning : view_.list("warnings"))
            element("p", QStringLiteral("Warning: ") + plainText(warning[QLatin1String("text")].toString()));
        writeFacts("Run", "How the run went", view_.facts());
        writeMessages();
        view_.isMicrophoneTest() ? writeRecording() : writeDigits();
        writeFacts("Device", "What the device tells about itself", view_.properties());
        writeLimits();
        const QString kept = view_.text("keptAudio");
        element("p", kept.isEmpty() ? QStringLiteral("No sound was kept.")
                                    : QStringLiteral("All that was heard, voices too, was kept in %1.").arg(kept));
    }

    void translated(const char *name, const QString &text)
    {
        open(name);
        attribute("lang", view_.languageTag());
        xml_.writeCharacters(text);
        close();
    }

    void writeVerdict()
    {
        open("p");
        open("strong");
        const int code = view_.code();
        const QString kind = code == 0 || code == 1 ? QStringLiteral("code%1").arg(code) : QStringLiteral("other");
        attribute("class", QStringLiteral("verdict ") + kind);
        xml_.writeCharacters(QStringLiteral("Result %1: %2").arg(code).arg(view_.verdictName()));
        close();
        close();
        if (code != 0 && !view_.reasonInEnglish().isEmpty())
            element("p", view_.reasonInEnglish());
    }

    void writeFacts(const char *title, const char *caption, const QList<ReportFact> &facts)
    {
        if (facts.isEmpty())
            return;
        element("h2", QLatin1String(title));
        open("table");
        element("caption", QLatin1String(caption));
        for (const ReportFact &fact : facts) {
            open("tr");
            heading(fact.title, "row");
            fact.isTranslated ? translated("td", fact.value) : element("td", fact.value);
            close();
        }
        close();
    }

    void heading(const QString &text, const char *scope)
    {
        open("th");
        attribute("scope", QLatin1String(scope));
        xml_.writeCharacters(text);
        close();
    }

    void writeMessages()
    {
        const QJsonArray messages = view_.list("messages");
        element("h2", QStringLiteral("Messages"));
        if (messages.isEmpty()) {
            element("p", QStringLiteral("The test left no message."));
            return;
        }
        open("table");
        element("caption", QStringLiteral("What the test said"));
        QStringList titles{QStringLiteral("Kind"), QStringLiteral("Text"), QStringLiteral("Key")};
        if (!view_.isEnglish())
            titles.insert(2, QStringLiteral("In the language of the run"));
        writeHeader(titles);
        for (const QJsonValue message : messages)
            writeMessage(message.toObject());
        close();
        if (view_.flag("unattended"))
            element("p", QStringLiteral("\u201CThe user\u201D is the operator program: no person answered."));
    }

    void writeMessage(const QJsonObject &message)
    {
        open("tr");
        const bool isError = message.value(QLatin1String("level")).toInt() > 0;
        element("td", isError ? QStringLiteral("error") : QStringLiteral("note"));
        element("td", view_.messageText(message));
        if (!view_.isEnglish())
            translated("td", view_.translatedMessage(message));
        open("td");
        element("code", plainText(message.value(QLatin1String("text")).toString()));
        close();
        close();
    }

    void writeHeader(const QStringList &titles)
    {
        open("tr");
        for (const QString &title : titles)
            heading(title, "col");
        close();
    }

    void writeDigits()
    {
        const QList<QStringList> rows = view_.digitRows();
        element("h2", QStringLiteral("Digits"));
        if (rows.isEmpty()) {
            element("p", unheard("No digit was heard."));
            return;
        }
        open("div");
        attribute("class", QStringLiteral("scroll"));
        open("table");
        attribute("class", QStringLiteral("digits"));
        element("caption", QStringLiteral("Each digit as it was played, heard and typed"));
        writeHeader(rows.first());
        for (const QStringList &row : rows.mid(1)) {
            open("tr");
            for (const QString &cell : row)
                element("td", cell);
            close();
        }
        close();
        close();
        element("p", QStringLiteral("What was played is known only of a sequence that the test accepted. A hyphen stands for "
                                    "what is not known or not measurable."));
        writeDigitPlots(xml_, report_);
    }

    QString unheard(const char *text) const
    {
        if (report_.value(QLatin1String("moduleCode")).isNull())
            return QStringLiteral("The test was not run.");
        if (!view_.flag("unattended"))
            return view_.code() <= 1 ? QStringLiteral("A person listened: nothing was measured.")
                                     : QStringLiteral("Nobody judged what was played.");
        return QLatin1String(text);
    }

    void writeRecording()
    {
        const auto facts = view_.recordingFacts();
        writeFacts("Recording", "What was heard of the recording", facts);
        writeRecordingPlot(xml_, report_);
        if (!facts.isEmpty())
            return;
        element("h2", QStringLiteral("Recording"));
        element("p", unheard("No recording was heard."));
    }

    void writeLimits()
    {
        const QStringList limits = view_.lines("limits");
        if (limits.isEmpty())
            return;
        element("h2", QStringLiteral("What this run cannot tell"));
        open("ul");
        for (const QString &limit : limits)
            element("li", limit);
        close();
    }

    QJsonObject report_;
    ReportView view_;
    QByteArray bytes_;
    QXmlStreamWriter xml_;
};

} // namespace

QByteArray htmlReport(const QJsonObject &report) { return Page(report).write(); }

} // namespace host
