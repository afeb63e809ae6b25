#include "play/Json.h"

#include <charconv>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace play {

namespace {

std::string unescaped(std::string_view token) {
    std::string text;
    for (std::size_t i = 0; i < token.size(); ++i) {
        const bool isEscape = token[i] == '~' && i + 1 < token.size();
        if (!isEscape) {
            text += token[i];
            continue;
        }
        ++i;
        text += token[i] == '1' ? '/' : '~';
    }
    return text;
}

std::optional<QJsonValue> child(const QJsonValue& value, const std::string& token) {
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        const auto entry = object.find(QString::fromStdString(token));
        if (entry == object.end()) return std::nullopt;
        return entry.value();
    }
    if (!value.isArray()) return std::nullopt;
    const QJsonArray array = value.toArray();
    qsizetype index = 0;
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), index);
    const bool isIndex = error == std::errc() && end == token.data() + token.size();
    if (!isIndex || index < 0 || index >= array.size()) return std::nullopt;
    return array.at(index);
}

}  // namespace

bool isPointer(std::string_view text) {
    return text.empty() || text.front() == '/';
}

std::optional<QJsonValue> valueAt(const QJsonValue& document, std::string_view pointer) {
    std::optional<QJsonValue> value = document;
    while (value && !pointer.empty()) {
        pointer.remove_prefix(1);
        const std::size_t end = std::min(pointer.find('/'), pointer.size());
        value = child(*value, unescaped(pointer.substr(0, end)));
        pointer.remove_prefix(end);
    }
    return value;
}

std::optional<QJsonValue> parseJson(std::string_view text) {
    QByteArray wrapped("[");
    wrapped.append(text.data(), static_cast<qsizetype>(text.size()));
    wrapped.append(']');
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(wrapped, &error);
    if (error.error != QJsonParseError::NoError || document.array().size() != 1) return std::nullopt;
    return document.array().first();
}

bool equal(const QJsonValue& a, const QJsonValue& b) {
    if (a.isDouble() && b.isDouble()) return a.toDouble() == b.toDouble();
    if (a.isArray() && b.isArray()) {
        const QJsonArray left = a.toArray();
        const QJsonArray right = b.toArray();
        if (left.size() != right.size()) return false;
        for (qsizetype i = 0; i < left.size(); ++i)
            if (!equal(left.at(i), right.at(i))) return false;
        return true;
    }
    if (a.isObject() && b.isObject()) {
        const QJsonObject left = a.toObject();
        const QJsonObject right = b.toObject();
        if (left.size() != right.size()) return false;
        for (auto entry = left.begin(); entry != left.end(); ++entry) {
            const auto other = right.find(entry.key());
            if (other == right.end() || !equal(entry.value(), other.value())) return false;
        }
        return true;
    }
    return a == b;
}

std::string toText(const QJsonValue& value) {
    QJsonArray wrapper;
    wrapper.append(value);
    const QByteArray text = QJsonDocument(wrapper).toJson(QJsonDocument::Compact);
    return std::string(text.data() + 1, static_cast<std::size_t>(text.size()) - 2);
}

QJsonValue jsonText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QJsonValue jsonText(const std::optional<std::string>& utf8) {
    return utf8 ? jsonText(std::string_view(*utf8)) : QJsonValue();
}

QJsonArray jsonFrame(const platform::CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

}  // namespace play
