#include "keyfile.h"

#include "regularfile/regular_file.h"

#include <QHash>
#include <QStringDecoder>

#include <algorithm>

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isAsciiHexDigit(QChar c)
{
    return isAsciiDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// Configuration files of older tools are often Latin-1: a line that is not
// valid UTF-8 is read as Latin-1 rather than dropped.
QString decodeLine(QByteArrayView bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = utf8.decode(bytes);
    if (utf8.hasError())
        return QString::fromLatin1(bytes);
    return text;
}

bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

// What is wrong with a line starting with '[' whose first ']' is at close
// (negative when there is none); empty when it is a good section header.
QString headerProblem(const QString &text, qsizetype close)
{
    if (text.contains(QChar(0)))
        return QStringLiteral("section header contains a NUL byte");
    if (close < 0)
        return QStringLiteral("section header has no closing ']'");
    if (!isBlank(QStringView(text).sliced(close + 1)))
        return QStringLiteral("text after the section header's ']'");
    if (close == 1)
        return QStringLiteral("empty section name");
    return QString();
}

QString leftTrimmed(const QString &text)
{
    const auto first = std::find_if(text.cbegin(), text.cend(),
                                    [](QChar c) { return !c.isSpace(); });
    return text.mid(int(first - text.cbegin()));
}

} // namespace

class KeyFile::Parser
{
public:
    Parser(KeyFile &result, const QString &origin) : m_result(result), m_log(origin) {}

    void parseLine(QByteArrayView bytes, int number);
    void finish();

private:
    void parseHeader(const QString &text, int number);
    void parseEntry(const QString &text, int number);
    void addSection(const QString &name, int number);
    void addEntry(const QString &key, const QString &value, int number);
    void warn(int number, const QString &message) { m_log.add(number, message); }

    KeyFile &m_result;
    WarningLog m_log;
    int m_current = -1; // no section yet, or the last header was malformed
    bool m_afterBadHeader = false;
};

void KeyFile::Parser::parseLine(QByteArrayView bytes, int number)
{
    if (bytes.endsWith('\r'))
        bytes.chop(1);
    // Not only at the start of the input: files joined together keep theirs.
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes = bytes.sliced(3);
    const QString text = leftTrimmed(decodeLine(bytes));
    if (text.isEmpty() || text.startsWith(u'#') || text.startsWith(u';'))
        return;
    if (text.startsWith(u'['))
        parseHeader(text, number);
    else
        parseEntry(text, number);
}

void KeyFile::Parser::parseHeader(const QString &text, int number)
{
    const qsizetype close = text.indexOf(u']');
    const QString problem = headerProblem(text, close);
    if (!problem.isEmpty()) {
        // Whatever section the header meant, its entries must not land in the
        // one before it.
        m_current = -1;
        m_afterBadHeader = true;
        warn(number, problem + QStringLiteral("; entries up to the next section are ignored"));
        return;
    }
    m_afterBadHeader = false;
    addSection(text.sliced(1, close - 1), number);
}

void KeyFile::Parser::addSection(const QString &name, int number)
{
    const auto known = m_result.m_sectionIndex.constFind(name);
    if (known != m_result.m_sectionIndex.cend()) {
        m_current = *known;
        return;
    }
    m_current = int(m_result.m_sections.size());
    m_result.m_sectionIndex.insert(name, m_current);
    m_result.m_sections.append(Section{name, number, {}});
}

void KeyFile::Parser::parseEntry(const QString &text, int number)
{
    if (text.contains(QChar(0))) {
        warn(number, QStringLiteral("line contains a NUL byte; ignored"));
        return;
    }
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 0) {
        warn(number, QStringLiteral("expected \"key = value\" or \"[section]\"; ignored"));
        return;
    }
    const QString key = text.left(equals).trimmed();
    if (key.isEmpty()) {
        warn(number, QStringLiteral("no key before '='; ignored"));
        return;
    }
    if (m_current < 0) {
        // The header's own warning already covers the entries after a bad header.
        if (!m_afterBadHeader)
            warn(number, QStringLiteral("entry %1 before any section; ignored").arg(quoted(key)));
        return;
    }
    addEntry(key, leftTrimmed(text.mid(equals + 1)), number);
}

void KeyFile::Parser::addEntry(const QString &key, const QString &value, int number)
{
    Section &section = m_result.m_sections[m_current];
    const std::pair<int, QString> indexKey(m_current, key);
    const auto known = m_result.m_entryIndex.constFind(indexKey);
    if (known == m_result.m_entryIndex.cend()) {
        m_result.m_entryIndex.insert(indexKey, int(section.entries.size()));
        section.entries.append(Entry{key, value, number});
        return;
    }
    Entry &entry = section.entries[*known];
    warn(number, QStringLiteral("duplicate key %1 in [%2] replaces the value of line %3")
                     .arg(quoted(key), shortened(section.name))
                     .arg(entry.line));
    entry.value = value;
    entry.line = number;
}

void KeyFile::Parser::finish()
{
    m_result.m_warnings = m_log.lines();
}

KeyFile KeyFile::parse(const QByteArray &data, const QString &origin)
{
    KeyFile result;
    Parser parser(result, origin);
    QByteArrayView rest(data);
    for (int number = 1; !rest.isEmpty(); ++number) {
        const qsizetype end = rest.indexOf('\n');
        parser.parseLine(end < 0 ? rest : rest.first(end), number);
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    }
    parser.finish();
    return result;
}

KeyFile KeyFile::load(const QString &path)
{
    const Tambro::FileContent content = Tambro::readRegularFile(path, maxFileBytes);
    if (content.status == Tambro::FileContent::Read)
        return parse(content.data, path);
    KeyFile result;
    if (content.status != Tambro::FileContent::Missing)
        result.m_warnings.append(
            QStringLiteral("%1: cannot read: %2").arg(path, content.problem));
    return result;
}

QString KeyFile::shortened(const QString &text)
{
    constexpr int maxLength = 40;
    return text.size() <= maxLength ? text : text.left(maxLength) + QStringLiteral("...");
}

QString KeyFile::quoted(const QString &text)
{
    return u'"' + shortened(text) + u'"';
}

void WarningLog::add(int line, const QString &message)
{
    if (++m_problems > maxWarnings) {
        if (!m_firstUnlistedLine)
            m_firstUnlistedLine = line;
        return;
    }
    m_lines.append(QStringLiteral("%1:%2: %3").arg(m_origin).arg(line).arg(message));
}

QStringList WarningLog::lines() const
{
    if (m_problems <= maxWarnings)
        return m_lines;
    return m_lines
        + QStringList{QStringLiteral("%1:%2: %3 more problems from here on not listed")
                          .arg(m_origin)
                          .arg(m_firstUnlistedLine)
                          .arg(m_problems - maxWarnings)};
}

std::optional<qint64> KeyFile::toNumber(const QString &text)
{
    const QString trimmed = text.trimmed();
    bool ok = false;
    qint64 number = 0;
    if (trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        const QStringView digits = QStringView(trimmed).mid(2);
        if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isAsciiHexDigit))
            return std::nullopt;
        number = digits.toLongLong(&ok, 16);
    } else {
        const QStringView digits = QStringView(trimmed).mid(trimmed.startsWith(u'-') ? 1 : 0);
        if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isAsciiDigit))
            return std::nullopt;
        number = trimmed.toLongLong(&ok, 10);
    }
    return ok ? std::optional<qint64>(number) : std::nullopt;
}

const KeyFile::Section *KeyFile::section(const QString &name) const
{
    const auto found = m_sectionIndex.constFind(name);
    return found == m_sectionIndex.cend() ? nullptr : &m_sections[*found];
}

const KeyFile::Entry *KeyFile::entry(const QString &sectionName, const QString &key) const
{
    const auto section = m_sectionIndex.constFind(sectionName);
    if (section == m_sectionIndex.cend())
        return nullptr;
    const auto found = m_entryIndex.constFind({*section, key});
    return found == m_entryIndex.cend() ? nullptr : &m_sections[*section].entries[*found];
}

QStringList KeyFile::keys(const QString &sectionName) const
{
    const Section *found = section(sectionName);
    return found ? found->keys() : QStringList();
}

QString KeyFile::value(const QString &sectionName, const QString &key,
                       const QString &fallback) const
{
    const Entry *found = entry(sectionName, key);
    return found ? found->value : fallback;
}

QString KeyFile::valueIgnoringCase(const QString &sectionName, const QString &key,
                                   const QString &fallback) const
{
    if (const Entry *exact = entry(sectionName, key))
        return exact->value;
    const Section *found = section(sectionName);
    const Entry *loose = found ? found->findIgnoringCase(key) : nullptr;
    return loose ? loose->value : fallback;
}

const KeyFile::Entry *KeyFile::Section::find(const QString &key) const
{
    const auto found = std::find_if(entries.cbegin(), entries.cend(),
                                    [&](const Entry &e) { return e.key == key; });
    return found == entries.cend() ? nullptr : &*found;
}

const KeyFile::Entry *KeyFile::Section::findIgnoringCase(const QString &key) const
{
    if (const Entry *exact = find(key))
        return exact;
    const auto found = std::find_if(entries.cbegin(), entries.cend(), [&](const Entry &e) {
        return e.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return found == entries.cend() ? nullptr : &*found;
}

QStringList KeyFile::Section::keys() const
{
    QStringList result;
    result.reserve(entries.size());
    for (const Entry &entry : entries)
        result.append(entry.key);
    return result;
}
