// SPDX-License-Identifier: Apache-2.0
#include "host/reports/report_view.h"

#include "contract/result_codes.h"
#include "host/translations/key_sentences.h"

#include <QDateTime>

#include <algorithm>

namespace host {

namespace {

const QString unknownValue = QStringLiteral("-");

bool isAllowed(QChar letter)
{
    const ushort code = letter.unicode();
    const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
    return code == u'\n' || code == u'\t' || (!isControl && code != 0xFFFE && code != 0xFFFF);
}

QString numberText(const QJsonValue &value, int decimals)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'f', decimals) : unknownValue;
}

QString yesOrNo(bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); }

QString latencyText(const QJsonObject &latency)
{
    const auto number = [&latency](const char *key) { return numberText(latency.value(QLatin1String(key)), 0); };
    return latency.isEmpty() ? QString()
                             : QStringLiteral("median %1, from %2 to %3, of %4 digits")
                                   .arg(number("medianMs"), number("lowestMs"), number("highestMs"), number("digitCount"));
}

// What the program says for itself is worded for logs, without capitals and full stops: it is not said twice.
bool isSame(const QString &one, const QString &other)
{
    const auto bare = [](QString text) {
        while (text.endsWith(u'.'))
            text.chop(1);
        return text.toCaseFolded();
    };
    return bare(one) == bare(other);
}

QString withKeys(const QString &text, const QStringList &keys)
{
    return keys.isEmpty() || text.isEmpty() ? text : text + QStringLiteral(" (%1)").arg(keys.join(QStringLiteral("; ")));
}

QString reasonText(const QString &english, const QString &translated, const QStringList &keys)
{
    if (translated.isEmpty() || isSame(english, translated))
        return withKeys(translated.isEmpty() ? english : translated, keys);
    QStringList parts{english, translated};
    parts.removeAll(QString());
    return withKeys(parts.join(QStringLiteral(" \u2013 ")), keys);
}

QString channelText(const QJsonObject &check)
{
    const auto words = [&check](const char *key) { return plainText(check.value(QLatin1String(key)).toString()); };
    const QString mapping = words("mapping");
    QStringList keys{words("reasonKey")};
    keys.removeAll(QString());
    const QString reason = reasonText(words("reason"), words("reasonTranslated"), keys);
    if (mapping.isEmpty() || !reason.isEmpty())
        return reason.isEmpty() ? mapping : QStringLiteral("%1: %2").arg(mapping, reason);
    const QString source = words("source");
    return source.isEmpty() ? QStringLiteral("%1, as a person heard them").arg(mapping)
                            : QStringLiteral("%1, measured at '%2'").arg(mapping, source);
}

QStringList digitHeader()
{
    return {QStringLiteral("Sequence"),     QStringLiteral("Digit"),       QStringLiteral("Played at (ms)"),
            QStringLiteral("Played"),       QStringLiteral("Heard"),       QStringLiteral("Typed"),
            QStringLiteral("Score"),        QStringLiteral("Margin"),      QStringLiteral("Latency (ms)"),
            QStringLiteral("Level (dBFS)"), QStringLiteral("Left (dBFS)"), QStringLiteral("Right (dBFS)"),
            QStringLiteral("Peak (dBFS)"),  QStringLiteral("SNR (dB)"),    QStringLiteral("Clock (ppm)"),
            QStringLiteral("Clipped")};
}

QStringList digitCells(const QJsonObject &digit)
{
    const QJsonObject measured = digit.value(QLatin1String("measured")).toObject();
    QStringList cells;
    const std::pair<const char *, int> numbers[] = {{"sequence", 0},  {"position", 0}, {"playedAtMs", 0}, {"played", 0},
                                                    {"heard", 0},     {"typed", 0},    {"score", 2},      {"margin", 2},
                                                    {"latencyMs", 0}, {"levelDbfs", 1}};
    for (const auto &[key, decimals] : numbers)
        cells.append(numberText(digit.value(QLatin1String(key)), decimals));
    for (const qsizetype channel : {0, 1})
        cells.append(numberText(measured.value(QLatin1String("channelDbfs"))[channel], 1));
    for (const char *key : {"peakDbfs", "snrDb", "clockErrorPpm"})
        cells.append(numberText(measured.value(QLatin1String(key)), 1));
    cells.append(yesOrNo(digit.value(QLatin1String("clipped")).toBool()));
    return cells;
}

} // namespace

QString plainText(QString text)
{
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar letter = text.at(index);
        const bool isPair = letter.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
        if (isPair)
            ++index;
        else if (letter.isSurrogate() || !isAllowed(letter))
            text[index] = QChar::ReplacementCharacter;
    }
    return text;
}

QString ReportView::text(const char *key) const { return plainText(report_.value(QLatin1String(key)).toString()); }

bool ReportView::flag(const char *key) const { return report_.value(QLatin1String(key)).toBool(); }

QJsonArray ReportView::list(const char *key) const { return report_.value(QLatin1String(key)).toArray(); }

QStringList ReportView::lines(const char *key) const
{
    QStringList lines;
    const QJsonArray values = list(key);
    for (const QJsonValue value : values)
        lines.append(plainText(value.toString()));
    return lines;
}

int ReportView::code() const
{
    const QJsonValue code = report_.value(QLatin1String("verdict"))[QLatin1String("code")];
    return code.toInt(static_cast<int>(ostra::result::notCompleted));
}

QString ReportView::verdictName() const
{
    return plainText(report_.value(QLatin1String("verdict"))[QLatin1String("name")].toString(QStringLiteral("not completed")));
}

bool ReportView::isMicrophoneTest() const
{
    return report_.value(QLatin1String("test"))[QLatin1String("letter")].toString() == QLatin1String("m");
}

QString ReportView::testKey() const
{
    return plainText(report_.value(QLatin1String("test"))[QLatin1String("nameKey")].toString());
}

QString ReportView::testName() const { return plainText(keySentences(testKey(), englishText).join(u' ')); }

QString ReportView::translatedTestName() const
{
    const QString name = plainText(report_.value(QLatin1String("test"))[QLatin1String("translated")].toString());
    return isEnglish() || isSame(name, testName()) ? QString() : name;
}

QString ReportView::hostName() const
{
    return plainText(report_.value(QLatin1String("machine"))[QLatin1String("hostName")].toString());
}

bool ReportView::isEnglish() const { return languageTag().startsWith(QLatin1String("en")); }

QString ReportView::messageText(const QJsonValue &message) const
{
    return plainText(keySentences(message[QLatin1String("text")].toString(), englishText).join(u' '));
}

QString ReportView::translatedMessage(const QJsonValue &message) const
{
    const QString text = plainText(message[QLatin1String("translated")].toString());
    return isEnglish() || isSame(text, messageText(message)) ? QString() : text;
}

QList<ReportFact> ReportView::properties() const
{
    QList<ReportFact> facts;
    const QJsonArray list = report_.value(QLatin1String("device"))[QLatin1String("properties")].toArray();
    for (const QJsonValue property : list) {
        const QString key = plainText(property[QLatin1String("key")].toString());
        const QString label = keySentences(key, englishText).join(u' ');
        facts.append({label == key ? key : QStringLiteral("%1 (%2)").arg(label, key),
                      plainText(property[QLatin1String("value")].toString())});
    }
    return facts;
}

QString ReportView::deviceName() const
{
    return plainText(report_.value(QLatin1String("device"))[QLatin1String("name")].toString());
}

QString ReportView::reason() const
{
    const QString reason = reasonText(text("reason"), text("reasonTranslated"), lines("reasonKeys"));
    const bool isAnswered = code() == static_cast<int>(ostra::result::failed) && flag("unattended");
    return isAnswered ? reason + QStringLiteral(" [the operator program answered, no person]") : reason;
}

// Of an English run both forms are; the sentence for people comes first.
QString ReportView::reasonInEnglish() const
{
    const QString words = text("reason");
    const QString sentence = text("reasonTranslated");
    const bool hasBoth = isEnglish() && !sentence.isEmpty();
    return withKeys(hasBoth ? sentence : words,
                    hasBoth && !isSame(words, sentence) ? QStringList{words} + lines("reasonKeys") : lines("reasonKeys"));
}

QString ReportView::volume(const char *key, const char *when) const
{
    const QJsonObject volume = report_.value(QLatin1String(key)).toObject();
    const auto at = [&](const char *what) { return volume.value(QLatin1String(what) + QLatin1String(when)); };
    QStringList words;
    if (at("percent").isDouble())
        words.append(numberText(at("percent"), 0) + QStringLiteral(" %"));
    if (at("muted").isBool())
        words.append(at("muted").toBool() ? QStringLiteral("muted") : QStringLiteral("not muted"));
    return words.join(QStringLiteral(", "));
}

void ReportView::addWarnings(QList<ReportFact> &facts) const
{
    for (const QJsonValue warning : list("warnings")) {
        const QString words = plainText(warning[QLatin1String("text")].toString());
        const QString translated = plainText(warning[QLatin1String("translated")].toString());
        facts.append({QStringLiteral("Warning"), withKeys(words, {plainText(warning[QLatin1String("key")].toString())})});
        if (!isEnglish() && !isSame(words, translated))
            facts.append({QStringLiteral("Warning (%1)").arg(languageTag()), translated, true});
    }
}

void ReportView::addMachine(QList<ReportFact> &facts) const
{
    const QJsonObject machine = report_.value(QLatin1String("machine")).toObject();
    const std::pair<const char *, const char *> titles[] = {{"Machine", "hostName"},
                                                            {"System", "system"},
                                                            {"Kernel", "kernel"},
                                                            {"Architecture", "architecture"},
                                                            {"Sound server", "soundServer"},
                                                            {"Program's version", "programVersion"},
                                                            {"Module's version", "moduleVersion"}};
    for (const auto &[title, key] : titles)
        facts.append({QLatin1String(title), plainText(machine.value(QLatin1String(key)).toString())});
}

QString ReportView::languageTag() const
{
    const QString code = text("language");
    return code.isEmpty() ? QStringLiteral("en") : QString(code).replace(u'_', u'-');
}

double ReportView::seconds() const
{
    const QDateTime started = QDateTime::fromString(text("startedUtc"), Qt::ISODateWithMs);
    const QDateTime ended = QDateTime::fromString(text("endedUtc"), Qt::ISODateWithMs);
    constexpr double msPerSecond = 1000.0;
    return started.isValid() && ended.isValid() ? std::max(0.0, static_cast<double>(started.msecsTo(ended)) / msPerSecond)
                                                : 0.0;
}

QList<ReportFact> ReportView::facts() const
{
    QList<ReportFact> facts;
    addWarnings(facts);
    facts += QList<ReportFact>{
        {QStringLiteral("Device"), deviceName()},
        {QStringLiteral("Microphone"), text("microphone")},
        {QStringLiteral("Language"), text("language")},
        {QStringLiteral("Started (UTC)"), text("startedUtc")},
        {QStringLiteral("Ended (UTC)"), text("endedUtc")},
        {QStringLiteral("Duration (s)"), QString::number(seconds(), 'f', 1)},
        {QStringLiteral("Result code"), QString::number(code())},
        {QStringLiteral("Module's code"), numberText(report_.value(QLatin1String("moduleCode")), 0)},
        {QStringLiteral("Unattended"), yesOrNo(flag("unattended"))},
        {QStringLiteral("Stopped"), yesOrNo(flag("stopped"))},
        {QStringLiteral("Listened to"), text("listenedTo")},
        {QStringLiteral("Answered by"), text("answeredBy")},
        {QStringLiteral("Reason"), reasonInEnglish()},
        {QStringLiteral("Reason (%1)").arg(languageTag()), isEnglish() ? QString() : text("reasonTranslated"), true},
        {QStringLiteral("Volume before"), volume("deviceVolume", "Before")},
        {QStringLiteral("Volume after"), volume("deviceVolume", "After")},
        {QStringLiteral("Microphone before"), volume("microphoneVolume", "Before")},
        {QStringLiteral("Microphone after"), volume("microphoneVolume", "After")},
        {QStringLiteral("Latency (ms)"), latencyText(report_.value(QLatin1String("latency")).toObject())},
        {QStringLiteral("Channels before the run"), channelText(report_.value(QLatin1String("channelMapping")).toObject())},
        {QStringLiteral("Sound kept in"), text("keptAudio")},
        {QStringLiteral("Guardian put back"), lines("volumesPutBackByGuardian").join(QStringLiteral(", "))},
        {QStringLiteral("Volumes"), text("volumeComplaint")},
        {QStringLiteral("Pictures"), lines("screenshots").join(QStringLiteral(", "))}};
    addMachine(facts);
    facts.removeIf([](const ReportFact &fact) { return fact.value.isEmpty(); });
    return facts;
}

QList<ReportFact> ReportView::recordingFacts() const
{
    const QJsonObject heard = report_.value(QLatin1String("recording")).toObject();
    if (heard.isEmpty())
        return {};
    const auto number = [&heard](const char *key, int decimals) {
        return numberText(heard.value(QLatin1String(key)), decimals);
    };
    const auto flag = [&heard](const char *key) { return yesOrNo(heard.value(QLatin1String(key)).toBool()); };
    const auto words = [&heard](const char *key) { return plainText(heard.value(QLatin1String(key)).toString(unknownValue)); };
    return {{QStringLiteral("Recorded by"), words("microphone")},
            {QStringLiteral("Spoken through"), words("spokenThrough")},
            {QStringLiteral("Sentence found"), flag("found")},
            {QStringLiteral("Heard at (ms)"), number("heardAtMs", 0)},
            {QStringLiteral("Score"), number("score", 2)},
            {QStringLiteral("Latency (ms)"), number("latencyMs", 0)},
            {QStringLiteral("Level (dBFS)"), number("levelDbfs", 1)},
            {QStringLiteral("Peak (dBFS)"), number("peakDbfs", 1)},
            {QStringLiteral("Clipped"), flag("clipped")},
            {QStringLiteral("Silent"), flag("silent")},
            {QStringLiteral("Mono in stereo"), flag("monoInStereo")},
            {QStringLiteral("Answer"), words("answer")}};
}

QList<QStringList> ReportView::digitRows() const
{
    const QJsonArray digits = list("digits");
    if (digits.isEmpty())
        return {};
    QList<QStringList> rows{digitHeader()};
    for (const QJsonValue digit : digits)
        rows.append(digitCells(digit.toObject()));
    return rows;
}

} // namespace host
