#include "host/common/DrawingCheck.h"

#include <QtCore/QBuffer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImageReader>

#include <limits>

namespace Korvex::Meridane::Common {
namespace {
constexpr qsizetype LargestFile = 16 * 1024 * 1024;
constexpr int DeepestNesting = 200;
constexpr qint64 MostElements = 200000;
constexpr qint64 MostEmbeddedPixels = 16 * 1000 * 1000;

/** An element: how many stand below it, and what it refers to. */
struct Node
{
    QString id;
    QStringList references;
    QList<int> children;
};

/** A drawing as it is read: its elements, and the pixels of the pictures in it. */
class DrawingReader
{
public:
    explicit DrawingReader(const QByteArray& svg)
        : m_xml(svg)
    {}

    /** Empty when the drawing can be shown. */
    QString fault()
    {
        const QString read = readElements();
        if (!read.isEmpty()) {
            return read;
        }
        if (m_nodes.isEmpty()) {
            return QStringLiteral("the file holds no drawing");
        }
        m_counts.fill(Unknown, m_nodes.size());
        const qint64 count = expandedCount(0);
        if (count < 0) {
            return QStringLiteral("an element refers to itself");
        }
        return count > MostElements ? QStringLiteral("its references multiply its elements") : QString();
    }

private:
    static constexpr qint64 Unknown = -1;
    static constexpr qint64 BeingCounted = -2;
    static constexpr qint64 Endless = -3;

    QString readElements()
    {
        QList<int> open;
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::DTD:
                if (!m_xml.entityDeclarations().isEmpty()) {
                    return QStringLiteral("it declares entities");
                }
                break;
            case QXmlStreamReader::StartElement: {
                if (open.size() >= DeepestNesting) {
                    return QStringLiteral("its elements are nested too deeply");
                }
                if (m_nodes.size() >= MostElements) {
                    return QStringLiteral("it has too many elements");
                }
                const QString fault = addElement(open.isEmpty() ? -1 : open.last());
                if (!fault.isEmpty()) {
                    return fault;
                }
                open.append(int(m_nodes.size()) - 1);
                break;
            }
            case QXmlStreamReader::EndElement:
                open.removeLast();
                break;
            default:
                break;
            }
        }
        return m_xml.hasError() ? m_xml.errorString() : QString();
    }

    QString addElement(int parent)
    {
        Node node;
        const bool isImage = m_xml.name() == QLatin1String("image");
        for (const QXmlStreamAttribute& attribute : m_xml.attributes()) {
            const QString value = attribute.value().toString().trimmed();
            if (attribute.name() == QLatin1String("id")) {
                node.id = value;
            } else if (attribute.name() == QLatin1String("href") && value.startsWith(QLatin1Char('#'))) {
                node.references.append(value.mid(1));
            } else if (attribute.name() == QLatin1String("href") && isImage) {
                const QString fault = addPicture(value);
                if (!fault.isEmpty()) {
                    return fault;
                }
            } else {
                addReferences(value, &node.references);
            }
        }
        m_ids.insert(node.id, int(m_nodes.size()));
        if (parent >= 0) {
            m_nodes[parent].children.append(int(m_nodes.size()));
        }
        m_nodes.append(node);
        return {};
    }

    /** Collects the ids of "url(#id)", as presentation attributes and styles write references. */
    static void addReferences(const QString& value, QStringList* references)
    {
        static const QRegularExpression reference(QStringLiteral("url\\(\\s*['\"]?#([^'\")]+)"));
        if (!value.contains(QLatin1String("url("))) {
            return;
        }
        auto matches = reference.globalMatch(value);
        while (matches.hasNext()) {
            references->append(matches.next().captured(1).trimmed());
        }
    }

    QString addPicture(const QString& reference)
    {
        if (!reference.startsWith(QLatin1String("data:"))) {
            return QStringLiteral("it refers to another file");
        }
        const qsizetype comma = reference.indexOf(QLatin1Char(','));
        QByteArray bytes = QByteArray::fromBase64(reference.mid(comma + 1).toLatin1());
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        if (reader.format().startsWith("svg")) {
            return QStringLiteral("it embeds another drawing");
        }
        const QSize size = reader.size();
        m_pixels += size.isValid() ? qint64(size.width()) * size.height() : 0;
        return m_pixels > MostEmbeddedPixels ? QStringLiteral("the pictures in it are too large") : QString();
    }

    /** The elements that drawing \p index comes to, references followed; Endless when they lead in a circle. */
    qint64 expandedCount(int index)
    {
        qint64& known = m_counts[index];
        if (known != Unknown) {
            return known == BeingCounted ? Endless : known;
        }
        known = BeingCounted;
        qint64 count = 1;
        QList<int> parts = m_nodes.at(index).children;
        for (const QString& id : m_nodes.at(index).references) {
            if (m_ids.contains(id)) {
                parts.append(m_ids.value(id));
            }
        }
        for (const int part : std::as_const(parts)) {
            if (++m_depth > MostReferences) {
                return m_counts[index] = Endless;
            }
            const qint64 below = expandedCount(part);
            --m_depth;
            if (below == Endless) {
                return m_counts[index] = Endless;
            }
            // Beyond the limit the exact number does not matter.
            count = qMin(count + below, MostElements + 1);
        }
        return m_counts[index] = count;
    }

    static constexpr int MostReferences = 2000; // that follow each other; keeps the recursion shallow

    QXmlStreamReader m_xml;
    QList<Node> m_nodes;
    QHash<QString, int> m_ids;
    QList<qint64> m_counts;
    qint64 m_pixels = 0;
    int m_depth = 0;
};
} // namespace

bool isHarmlessDrawing(const QByteArray& svg, QString* reason)
{
    const QString fault =
        svg.size() > LargestFile ? QStringLiteral("the file is larger than 16 MiB") : DrawingReader(svg).fault();
    if (reason) {
        *reason = fault;
    }
    return fault.isEmpty();
}
} // namespace Korvex::Meridane::Common
