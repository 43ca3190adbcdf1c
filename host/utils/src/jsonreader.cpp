#include "utils/jsontext.h"

#include <nlohmann/json.hpp>

#include <QRegularExpression>
#include <QStringList>
#include <QVariantMap>

#include <cstddef>
#include <iterator>
#include <limits>
#include <string>
#include <unordered_map>
#include <vector>

namespace Utils {

namespace {

/// Tells how far the reader has come: its copies share one count.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, int* count)
        : m_at(at)
        , m_count(count) {}
    reference operator*() const { return *m_at; }
    CountingIterator& operator++() {
        ++m_at;
        ++*m_count;
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator old = *this;
        ++*this;
        return old;
    }
    bool operator==(const CountingIterator& other) const { return m_at == other.m_at; }
    bool operator!=(const CountingIterator& other) const { return m_at != other.m_at; }

private:
    const char* m_at;
    int* m_count;
};

JsonError errorAt(const QByteArray& text, int offset, const QString& reason) {
    JsonError error;
    error.line = 1;
    error.column = 1;
    error.reason = reason;
    const int end = qMin(offset, text.size());
    int i = text.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    for (; i < end; ++i) {
        if (text[i] == '\n') {
            ++error.line;
            error.column = 1;
        } else if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
            ++error.column;
        }
    }
    return error;
}

/// The parser's words without its class name, position (ours counts characters) and the text
/// last read (it may be as long as the file).
QString reasonOf(const char* what) {
    static const QRegularExpression front(
        QStringLiteral("\\A\\[json\\.exception\\.[^\\]]*\\] "
                       "(?:parse error(?: at line \\d+, column \\d+)?: )?"));
    static const QRegularExpression lastRead(QStringLiteral("; last read: '.*'(?=; expected|\\z)"),
                                             QRegularExpression::DotMatchesEverythingOption);
    return QString::fromUtf8(what).remove(front).remove(lastRead);
}

/// Builds the value as the parser meets its parts.
class Builder : public nlohmann::json_sax<nlohmann::json> {
public:
    Builder(const QByteArray& text, const int* offset)
        : m_text(text)
        , m_offset(offset) {}

    /// Ends the reading at this part, with the reason as its error.
    void stopAt(const QStringList& wanted, const QString& reason) {
        m_wanted = wanted;
        m_wantedReason = reason;
    }

    const QVariant& value() const { return m_value; }
    const JsonError& error() const { return m_error; }

    bool null() override { return addWord(QVariant()); }
    bool boolean(bool value) override { return addWord(value); }
    bool number_integer(std::int64_t value) override {
        if (value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max()) {
            return addWord(static_cast<int>(value));
        }
        return addWord(static_cast<qlonglong>(value));
    }
    bool number_unsigned(std::uint64_t value) override {
        if (value <= static_cast<std::uint64_t>(std::numeric_limits<qlonglong>::max())) {
            return number_integer(static_cast<std::int64_t>(value));
        }
        return addWord(static_cast<qulonglong>(value));
    }
    bool number_float(double value, const std::string& digits) override {
        // The decimal point in here is the locale's.
        if (digits.find_first_not_of("-0123456789") == std::string::npos) {
            // The parser has read the character after the number, if there is one.
            const bool ahead = m_text[*m_offset - 1] < '0' || m_text[*m_offset - 1] > '9';
            return fail(*m_offset - (ahead ? 1 : 0) - static_cast<int>(digits.size()),
                        QStringLiteral("an integer wider than 64 bits"));
        }
        return addWord(value);
    }
    bool string(std::string& value) override {
        return (!isWantedEntry() || fail(startOfText(), m_wantedReason)) && add(fromUtf8(value));
    }
    bool binary(nlohmann::json::binary_t& /*value*/) override { return false; }

    bool start_object(std::size_t /*size*/) override { return push(true); }
    bool end_object() override {
        const QVariantMap map = m_frames.back().map;
        m_frames.pop_back();
        return add(map);
    }
    bool start_array(std::size_t /*size*/) override { return push(false); }
    bool end_array() override {
        const Frame frame = m_frames.back();
        m_frames.pop_back();
        if (!frame.allTexts) {
            return add(frame.list);
        }
        QStringList texts;
        texts.reserve(frame.list.size());
        for (const QVariant& item : frame.list) {
            texts.append(item.toString());
        }
        return add(texts);
    }
    bool key(std::string& value) override {
        Frame& frame = m_frames.back();
        // A large project has few keys, many times each: one copy serves them all.
        QString& shared = m_keys[value];
        if (shared.isNull()) {
            shared = fromUtf8(value);
        }
        frame.key = shared;
        // The program's own files have their keys in order.
        const bool inOrder = frame.map.isEmpty() || frame.map.lastKey() < frame.key;
        if (!inOrder && frame.map.contains(frame.key)) {
            return fail(startOfText(),
                        QStringLiteral("the key \"%1\" is given twice").arg(frame.key));
        }
        return m_wanted.isEmpty() || path() != m_wanted || fail(startOfText(), m_wantedReason);
    }
    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const nlohmann::json::exception& what) override {
        // The position counts the characters read, the one that was wrong included.
        return fail(static_cast<int>(position) - 1, reasonOf(what.what()));
    }

private:
    struct Frame {
        bool isObject = false;
        bool allTexts = true;
        QString key;
        QVariantMap map;
        QVariantList list;
    };

    static QString fromUtf8(const std::string& text) {
        return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    }

    /// The keys and entries' numbers from the outermost object or list to the part being read.
    QStringList path() const {
        QStringList parts;
        for (const Frame& frame : m_frames) {
            parts.append(frame.isObject ? frame.key : QString::number(frame.list.size()));
        }
        return parts;
    }
    /// An object's part counts at its key.
    bool isWantedEntry() const {
        return !m_wanted.isEmpty() && !m_frames.empty() && !m_frames.back().isObject &&
               path() == m_wanted;
    }

    /// Adds a number or another word.
    bool addWord(const QVariant& value) {
        return (!isWantedEntry() || fail(startOfWord(), m_wantedReason)) && add(value);
    }

    bool push(bool isObject) {
        if (isWantedEntry()) {
            return fail(*m_offset - 1, m_wantedReason);
        }
        if (m_frames.size() >= static_cast<std::size_t>(jsonDepthLimit)) {
            return fail(
                *m_offset - 1,
                QStringLiteral("more than %1 levels of lists and objects").arg(jsonDepthLimit));
        }
        m_frames.push_back(Frame());
        m_frames.back().isObject = isObject;
        return true;
    }

    bool add(const QVariant& value) {
        if (m_frames.empty()) {
            m_value = value;
            return true;
        }
        Frame& frame = m_frames.back();
        if (frame.isObject) {
            frame.map.insert(frame.map.constEnd(), frame.key, value); // the likely place
        } else {
            frame.allTexts = frame.allTexts && value.userType() == QMetaType::QString;
            frame.list.append(value);
        }
        return true;
    }

    /// A number or word that was just read; the parser may have read a character more.
    int startOfWord() const {
        const auto inWord = [this](int at) {
            const char c = m_text[at];
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == 'E' || c == '+' ||
                   c == '-' || c == '.';
        };
        int at = *m_offset - 1;
        at -= inWord(at) ? 0 : 1;
        while (at > 0 && inWord(at - 1)) {
            --at;
        }
        return at;
    }

    /// The text that was just read ends with the quote before the offset. Going back, the first
    /// quote that no odd run of backslashes escapes is the one that opens it.
    int startOfText() const {
        int at = *m_offset - 2;
        for (; at > 0; --at) {
            if (m_text[at] != '"') {
                continue;
            }
            int slashes = 0;
            while (at - slashes > 0 && m_text[at - slashes - 1] == '\\') {
                ++slashes;
            }
            if (slashes % 2 == 0) {
                break;
            }
        }
        return at;
    }

    bool fail(int offset, const QString& reason) {
        m_error = errorAt(m_text, offset, reason);
        return false;
    }

    const QByteArray& m_text;
    const int* m_offset;
    QVariant m_value;
    JsonError m_error;
    std::vector<Frame> m_frames;
    QStringList m_wanted;
    QString m_wantedReason;
    std::unordered_map<std::string, QString> m_keys;
};

bool read(const QByteArray& text, Builder* builder, int* offset) {
    const CountingIterator first(text.constData(), offset);
    const CountingIterator last(text.constData() + text.size(), offset);
    return nlohmann::json::sax_parse(first, last, builder);
}

} // namespace

QString JsonError::text() const {
    return isNull() ? QString()
                    : QStringLiteral("line %1, column %2: %3")
                          .arg(QString::number(line), QString::number(column), reason);
}

bool parseJson(const QByteArray& text, QVariant* value, JsonError* error) {
    // The parser takes a zero byte for the end of the text and would not see what follows.
    const int zero = text.indexOf('\0');
    if (zero >= 0) {
        *error = errorAt(text, zero, QStringLiteral("a zero byte"));
        return false;
    }
    int offset = 0;
    Builder builder(text, &offset);
    if (!read(text, &builder, &offset)) {
        *error = builder.error();
        return false;
    }
    *value = builder.value();
    *error = JsonError();
    return true;
}

JsonError errorAtKey(const QByteArray& text, const QStringList& path, const QString& reason) {
    int offset = 0;
    Builder builder(text, &offset);
    builder.stopAt(path, reason);
    read(text, &builder, &offset);
    return builder.error();
}

} // namespace Utils
