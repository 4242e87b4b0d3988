#include "desktop/BookmarkList.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <iterator>
#include <utility>

namespace kestrel::desktop {

namespace {

// https://www.freedesktop.org/wiki/Specifications/desktop-bookmark-spec/
constexpr QLatin1String kProgram("KestrelIconEditor");
constexpr QLatin1String kCommand("'KestrelIconEditor /open %f'");
constexpr QLatin1String kOwner("http://freedesktop.org");
constexpr QLatin1String kApplications("bookmark:applications");
constexpr QLatin1String kApplication("bookmark:application");
constexpr std::pair<QLatin1String, QLatin1String> kNamespaces[] = {
    {QLatin1String("xmlns:bookmark"),
     QLatin1String("http://www.freedesktop.org/standards/desktop-bookmarks")},
    {QLatin1String("xmlns:mime"),
     QLatin1String("http://www.freedesktop.org/standards/shared-mime-info")},
};

// The elements that the note of a program lies in, from the outside in.
constexpr QLatin1String kLevels[] = {QLatin1String("xbel"), QLatin1String("bookmark"),
                                     QLatin1String("info"), QLatin1String("metadata"),
                                     kApplications};
constexpr qsizetype kBookmarkLevel = 2;
constexpr qsizetype kMetadataLevel = 4;

void Set(QXmlStreamAttributes& attributes, QLatin1String name, const QString& value) {
    for (QXmlStreamAttribute& attribute : attributes) {
        if (attribute.qualifiedName() != name) continue;
        attribute = QXmlStreamAttribute(name, value);
        return;
    }
    attributes.append(name, value);
}

// Copies a list token by token and changes one bookmark on the way.
class ListCopy {
  public:
    ListCopy(const QByteArray& list, const Bookmark& bookmark) : in_(list), bookmark_(bookmark) {
        // Names stay as they are spelled.
        in_.setNamespaceProcessing(false);
    }

    std::optional<QByteArray> Copied() {
        while (!in_.atEnd() && isList_) {
            in_.readNext();
            CopyToken();
        }
        if (in_.hasError() || !isList_ || !noted_) return std::nullopt;
        return copy_ + '\n';
    }

  private:
    void CopyToken() {
        switch (in_.tokenType()) {
            case QXmlStreamReader::StartDocument:
                return out_.writeStartDocument();
            case QXmlStreamReader::DTD:
                return out_.writeDTD(in_.text().toString());
            case QXmlStreamReader::StartElement:
                return StartElement();
            case QXmlStreamReader::EndElement:
                return EndElement();
            case QXmlStreamReader::Characters:
                return in_.isCDATA() ? out_.writeCDATA(in_.text().toString())
                                     : out_.writeCharacters(in_.text().toString());
            case QXmlStreamReader::Comment:
                return out_.writeComment(in_.text().toString());
            case QXmlStreamReader::EntityReference:
                return out_.writeEntityReference(in_.name().toString());
            case QXmlStreamReader::ProcessingInstruction:
                return out_.writeProcessingInstruction(in_.processingInstructionTarget().toString(),
                                                       in_.processingInstructionData().toString());
            default:
                return;
        }
    }

    void StartElement() {
        const QString name = in_.qualifiedName().toString();
        QXmlStreamAttributes attributes = in_.attributes();
        Enter(name, attributes);
        if (open_.isEmpty()) {
            isList_ = name == kLevels[0] && DeclareNamespaces(attributes);
        } else if (inside_ == kBookmarkLevel && open_.size() + 1 == inside_) {
            Set(attributes, QLatin1String("modified"), bookmark_.time);
            Set(attributes, QLatin1String("visited"), bookmark_.time);
        } else if (inside_ == std::ssize(kLevels) && open_.size() == inside_ &&
                   name == kApplication && attributes.value(QLatin1String("name")) == kProgram) {
            const int count = attributes.value(QLatin1String("count")).toInt();
            Set(attributes, QLatin1String("exec"), kCommand);
            Set(attributes, QLatin1String("modified"), bookmark_.time);
            Set(attributes, QLatin1String("count"), QString::number(count + 1));
            noted_ = true;
        }
        open_ << name;
        out_.writeStartElement(name);
        out_.writeAttributes(attributes);
    }

    // Follows the levels that lead to the note of this program; the first bookmark of the address
    // counts.
    void Enter(const QString& name, const QXmlStreamAttributes& attributes) {
        if (noted_ || open_.size() != inside_ || inside_ == std::ssize(kLevels) ||
            name != kLevels[inside_]) {
            return;
        }
        ++inside_;
        const bool leadsAstray =
            (inside_ == kBookmarkLevel &&
             attributes.value(QLatin1String("href")) != bookmark_.href) ||
            (inside_ == kMetadataLevel && attributes.value(QLatin1String("owner")) != kOwner);
        if (leadsAstray) --inside_;
    }

    void EndElement() {
        if (open_.size() == inside_) {
            if (!noted_) WriteNote();
            --inside_;
        }
        open_.removeLast();
        out_.writeEndElement();
    }

    // What is missing in the innermost level that is open.
    void WriteNote() {
        const qsizetype levels = std::ssize(kLevels);
        for (qsizetype level = inside_; level < levels; ++level) {
            NewLine(level);
            out_.writeStartElement(kLevels[level]);
            if (level + 1 == kBookmarkLevel) {
                out_.writeAttribute(QLatin1String("href"), bookmark_.href);
                for (const char* name : {"added", "modified", "visited"})
                    out_.writeAttribute(QLatin1String(name), bookmark_.time);
            } else if (level + 1 == kMetadataLevel) {
                out_.writeAttribute(QLatin1String("owner"), kOwner);
                NewLine(level + 1);
                out_.writeEmptyElement(QLatin1String("mime:mime-type"));
                out_.writeAttribute(QLatin1String("type"), bookmark_.mimeType);
            }
        }
        NewLine(levels);
        out_.writeEmptyElement(kApplication);
        out_.writeAttribute(QLatin1String("name"), kProgram);
        out_.writeAttribute(QLatin1String("exec"), kCommand);
        out_.writeAttribute(QLatin1String("modified"), bookmark_.time);
        out_.writeAttribute(QLatin1String("count"), QLatin1String("1"));
        for (qsizetype level = levels; level-- > inside_;) {
            NewLine(level);
            out_.writeEndElement();
        }
        NewLine(inside_ - 1);
        noted_ = true;
    }

    void NewLine(qsizetype level) {
        constexpr qsizetype kIndent = 2;
        out_.writeCharacters(QLatin1Char('\n') + QString(level * kIndent, QLatin1Char(' ')));
    }

    // False when a prefix means something else in this list.
    static bool DeclareNamespaces(QXmlStreamAttributes& attributes) {
        for (const auto& [prefix, uri] : kNamespaces) {
            if (!attributes.hasAttribute(prefix)) attributes.append(prefix, uri);
            if (attributes.value(prefix) != uri) return false;
        }
        return true;
    }

    QXmlStreamReader in_;
    QByteArray copy_;
    QXmlStreamWriter out_{&copy_};
    const Bookmark& bookmark_;
    QStringList open_;
    // How many of kLevels are open, one in the other.
    qsizetype inside_ = 0;
    bool isList_ = true;
    bool noted_ = false;
};

}  // namespace

QString FileAddress(const std::string& path) {
    return QStringLiteral("file://") +
           QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("!$&'()*+,/:=@"));
}

std::optional<QByteArray> WithBookmark(const QByteArray& list, const Bookmark& bookmark) {
    static const QByteArray kEmptyList =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><xbel version=\"1.0\"/>";
    return ListCopy(list.isEmpty() ? kEmptyList : list, bookmark).Copied();
}

}  // namespace kestrel::desktop
