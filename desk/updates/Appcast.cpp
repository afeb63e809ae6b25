#include "desk/updates/Appcast.h"

#include <QXmlStreamReader>

#include "desk/updates/VersionOrder.h"

namespace desk {

namespace {

constexpr QStringView sparkle = u"http://www.andymatuschak.org/xml-namespaces/sparkle";
constexpr std::size_t longestVersion = 64;

bool isAt(const QXmlStreamReader& xml, QStringView name, QStringView space = {}) {
    return xml.name() == name && xml.namespaceUri() == space;
}

std::string textOf(QXmlStreamReader& xml) {
    return xml.readElementText(QXmlStreamReader::SkipChildElements).simplified().toStdString();
}

AppcastItem readItem(QXmlStreamReader& xml) {
    AppcastItem item;
    while (xml.readNextStartElement()) {
        if (isAt(xml, u"version", sparkle)) {
            item.version = textOf(xml);
        } else if (isAt(xml, u"shortVersionString", sparkle)) {
            item.displayVersion = textOf(xml);
        } else {
            if (isAt(xml, u"enclosure"))
                item.url = xml.attributes().value(QLatin1String("url")).trimmed().toString().toStdString();
            xml.skipCurrentElement();
        }
    }
    if (item.displayVersion.empty()) item.displayVersion = item.version;
    return item;
}

bool isComplete(const AppcastItem& item) {
    return !item.version.empty() && !item.url.empty() && item.version.size() <= longestVersion &&
           item.displayVersion.size() <= longestVersion;
}

void readChannel(QXmlStreamReader& xml, std::vector<AppcastItem>& items) {
    while (xml.readNextStartElement()) {
        if (isAt(xml, u"item")) {
            const AppcastItem item = readItem(xml);
            if (isComplete(item)) items.push_back(item);
        } else {
            xml.skipCurrentElement();
        }
    }
}

// No feed needs entities of its own.
bool entersRoot(QXmlStreamReader& xml) {
    while (!xml.atEnd() && !xml.isStartElement())
        if (xml.readNext() == QXmlStreamReader::DTD && xml.text().contains(u"<!ENTITY")) return false;
    return isAt(xml, u"rss");
}

}  // namespace

std::optional<std::vector<AppcastItem>> readAppcast(std::string_view feed) {
    if (feed.size() > largestFeed) return std::nullopt;
    QXmlStreamReader xml(QByteArray(feed.data(), static_cast<qsizetype>(feed.size())));
    if (!entersRoot(xml)) return std::nullopt;
    std::vector<AppcastItem> items;
    while (xml.readNextStartElement()) {
        if (isAt(xml, u"channel"))
            readChannel(xml, items);
        else
            xml.skipCurrentElement();
    }
    while (!xml.atEnd()) xml.readNext();
    return xml.hasError() ? std::nullopt : std::optional(std::move(items));
}

const AppcastItem* newestAbove(const std::vector<AppcastItem>& items, std::string_view version) {
    const AppcastItem* newest = nullptr;
    for (const AppcastItem& item : items)
        if (compareVersions(item.version, newest == nullptr ? version : newest->version) > 0) newest = &item;
    return newest;
}

}  // namespace desk
