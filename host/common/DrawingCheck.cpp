#include "host/common/DrawingCheck.h"

#include "host/common/DrawingElements.h"
#include "host/common/LocalizationHelper.h"
#include "host/common/RasterFile.h"
#include "host/common/StyleSheetCost.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>

namespace Korvex::Meridane::Common {
namespace {
constexpr qsizetype LargestFile = 8 * 1024 * 1024;
constexpr qsizetype DeepestNesting = 200;
constexpr qint64 MostElements = 100 * 1000;
constexpr qsizetype MostAttributes = 300; // of an element
constexpr int MostStops = 1000; // of a gradient; each is put into its place among all others
constexpr qsizetype LongestStyle = 64 * 1024; // of an element
constexpr qint64 LargestEntities = 1024 * 1024; // where they are used
constexpr qint64 MostEmbeddedPixels = 16 * 1000 * 1000;
constexpr qint64 ElementsALetter = 5;
constexpr qint64 AttributeLettersAnElement = 100;

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/** Whether an element has more attributes than any drawing needs: the XML reader compares each of them with all others. No
 *  attribute holds a "<", so they are counted from one to the next. */
bool hasCrowdedElement(const QByteArray& svg)
{
    qsizetype attributes = 0;
    bool afterEquals = false;
    for (const char c : svg) {
        if (c == '<') {
            attributes = 0;
        } else if (afterEquals && (c == '"' || c == '\'') && ++attributes > MostAttributes) {
            return true;
        }
        afterEquals = c == '=' || (afterEquals && isSpace(c));
    }
    return false;
}

/** Whether entities are declared that the document type itself uses; the XML reader follows them before it tells of them. */
bool hasParameterEntity(const QByteArray& svg)
{
    const auto declaration = QByteArrayLiteral("<!ENTITY");
    for (qsizetype at = svg.indexOf(declaration); at >= 0; at = svg.indexOf(declaration, at)) {
        at += declaration.size();
        while (at < svg.size() && isSpace(svg.at(at))) {
            ++at;
        }
        if (at < svg.size() && svg.at(at) == '%') {
            return true;
        }
    }
    return false;
}

/** What can be said of a drawing without reading it as XML, which these would hang; empty when nothing is wrong. */
QString faultOfText(const QByteArray& svg)
{
    if (svg.size() > LargestFile) {
        return LocalizationHelper::coreString(QStringLiteral("the file is larger than 8 MiB"));
    }
    if (svg.contains('\0')) {
        return LocalizationHelper::coreString(QStringLiteral("the file is not in UTF-8"));
    }
    if (hasParameterEntity(svg)) {
        return LocalizationHelper::coreString(QStringLiteral("it declares entities that cannot be followed"));
    }
    return hasCrowdedElement(svg)
               ? LocalizationHelper::coreString(QStringLiteral("an element of it has too many attributes"))
               : QString();
}

/** The name without its prefix: "image" of "svg:image". Prefixes are often left undeclared, and nobody minds. */
QStringView localName(QStringView name)
{
    return name.sliced(name.lastIndexOf(u':') + 1);
}

/** Whether what an element of this name refers to is neither painted nor used: the target of a hyperlink or an animation. */
bool refersInNameOnly(QStringView element)
{
    return element == u"a" || element == u"set" || element == u"script" || element.startsWith(u"animate");
}

/** Reads a drawing once and finds the first thing that is wrong with it. */
class DrawingReader
{
public:
    explicit DrawingReader(const QByteArray& svg)
        : m_svg(svg)
        , m_xml(svg)
    {
        m_xml.setNamespaceProcessing(false);
    }

    /** Empty when the drawing can be read. */
    QString fault()
    {
        while (!m_xml.atEnd()) {
            QString fault = faultOf(m_xml.readNext());
            if (!fault.isEmpty()) {
                return fault;
            }
        }
        if (m_xml.hasError()) {
            return m_xml.errorString();
        }
        if (m_elements.count() == 0) {
            return LocalizationHelper::coreString(QStringLiteral("the file holds no drawing"));
        }
        if (m_styles.isTooLarge()) {
            return LocalizationHelper::coreString(QStringLiteral("its style sheets are too large"));
        }
        const qint64 weight = m_elements.expandedWeight(MostElements);
        if (weight == DrawingElements::Endless) {
            return LocalizationHelper::coreString(QStringLiteral("an element refers to itself"));
        }
        return weight > MostElements ? LocalizationHelper::coreString(
                   QStringLiteral("it has too many elements, or its references multiply them"))
                                     : QString();
    }

private:
    /** An element whose end has not been read yet. */
    struct Open
    {
        int number = -1;
        int children = 0;
        bool isStyleSheet = false;
        bool isText = false; // or stands in one
    };

    QString faultOf(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::DTD:
            return faultOfEntities();
        case QXmlStreamReader::ProcessingInstruction:
            // It is followed before anything else is read, wherever it leads.
            return m_xml.processingInstructionTarget() == u"xml-stylesheet" ? refersElsewhere() : QString();
        case QXmlStreamReader::StartElement:
            return addElement();
        case QXmlStreamReader::EndElement:
            m_open.removeLast();
            return {};
        case QXmlStreamReader::Characters:
            addText();
            return {};
        default:
            return {};
        }
    }

    static QString refersElsewhere()
    {
        return LocalizationHelper::coreString(QStringLiteral("it refers to another file"));
    }

    /** Drawing programs declare entities for long names; they are plain texts, each used a few times. */
    QString faultOfEntities() const
    {
        qint64 longest = 0;
        const QXmlStreamEntityDeclarations entities = m_xml.entityDeclarations();
        for (const QXmlStreamEntityDeclaration& entity : entities) {
            if (!entity.systemId().isEmpty() || !entity.publicId().isEmpty()) {
                return refersElsewhere();
            }
            if (entity.value().contains(u'&') || entity.value().contains(u'<')) {
                return LocalizationHelper::coreString(QStringLiteral("it declares entities that cannot be followed"));
            }
            longest = qMax<qint64>(longest, entity.value().size());
        }
        return longest * m_svg.count('&') > LargestEntities
                   ? LocalizationHelper::coreString(QStringLiteral("its entities are too large"))
                   : QString();
    }

    QString addElement()
    {
        if (m_open.size() >= DeepestNesting) {
            return LocalizationHelper::coreString(QStringLiteral("its elements are nested too deeply"));
        }
        if (m_elements.count() >= MostElements) {
            return LocalizationHelper::coreString(
                QStringLiteral("it has too many elements, or its references multiply them"));
        }
        const QStringView name = localName(m_xml.qualifiedName());
        if (name == u"stop" && !m_open.isEmpty() && m_open.constLast().children >= MostStops) {
            return LocalizationHelper::coreString(QStringLiteral("a gradient of it has too many colours"));
        }
        DrawingElements::Element element;
        const QXmlStreamAttributes attributes = m_xml.attributes();
        qsizetype letters = 0;
        QStringView classes;
        for (const QXmlStreamAttribute& attribute : attributes) {
            const QStringView key = localName(attribute.qualifiedName());
            const QStringView value = attribute.value();
            letters += value.size();
            if (key == u"id") {
                element.id = value.toString();
            } else if (key == u"class") {
                classes = value;
            } else if (key == u"style" && value.size() > LongestStyle) {
                return LocalizationHelper::coreString(QStringLiteral("its style sheets are too large"));
            } else if (key == u"href") {
                QString fault = faultOfReference(name, value, &element.references);
                if (!fault.isEmpty()) {
                    return fault;
                }
                continue;
            }
            addReferences(value.toString(), &element.references);
        }
        element.weight += letters / AttributeLettersAnElement;
        m_styles.addElement(int(m_open.size()) + 1, m_open.isEmpty() ? 0 : m_open.constLast().children, classes);
        const int number = m_elements.add(element, m_open.isEmpty() ? -1 : m_open.constLast().number);
        if (!m_open.isEmpty()) {
            ++m_open.last().children;
        }
        const bool inText = !m_open.isEmpty() && m_open.constLast().isText;
        m_open.append({number, 0, name == u"style", inText || name == u"text" || name == u"textArea"});
        return {};
    }

    void addText()
    {
        if (m_open.isEmpty()) {
            return;
        }
        if (m_open.constLast().isStyleSheet) {
            m_styles.addStyleSheet(m_xml.text());
        } else if (m_open.constLast().isText) {
            m_elements.addWeight(m_open.constLast().number, ElementsALetter * m_xml.text().size());
        }
    }

    QString faultOfReference(QStringView element, QStringView target, QStringList* references)
    {
        if (target.trimmed().isEmpty() || refersInNameOnly(element)) {
            return {};
        }
        if (element == u"image") {
            return faultOfPicture(target);
        }
        if (!target.trimmed().startsWith(u'#')) {
            return refersElsewhere();
        }
        references->append(target.trimmed().sliced(1).toString());
        // Some readers cut off what they take for the "#".
        if (!target.startsWith(u'#')) {
            references->append(target.sliced(1).toString());
        }
        return {};
    }

    /** Collects the ids of "url(#id)", as presentation attributes and styles write references. */
    static void addReferences(const QString& value, QStringList* references)
    {
        static const QRegularExpression reference(QStringLiteral("url\\(\\s*['\"]?\\s*#([^'\")]+)"));
        if (!value.contains(QLatin1String("url("))) {
            return;
        }
        auto matches = reference.globalMatch(value);
        while (matches.hasNext()) {
            references->append(matches.next().captured(1).trimmed());
        }
    }

    /** \p target is read as it will be when the drawing is loaded: whatever follows the last "base64,". */
    QString faultOfPicture(QStringView target)
    {
        const QLatin1String marker("base64,");
        const qsizetype at = target.lastIndexOf(marker);
        if (!target.startsWith(u"data:") || at < 0) {
            return refersElsewhere();
        }
        const QByteArray bytes = QByteArray::fromBase64(target.sliced(at + marker.size()).toLatin1());
        QString reason;
        const PictureInfo info = rasterInfo(bytes, &reason);
        if (info.kind == PictureKind::Unreadable) {
            return LocalizationHelper::coreString(QStringLiteral("a picture in it cannot be used: %1")).arg(reason);
        }
        m_pixels += qint64(info.size.width()) * info.size.height();
        return m_pixels > MostEmbeddedPixels
                   ? LocalizationHelper::coreString(QStringLiteral("the pictures in it are too large"))
                   : QString();
    }

    const QByteArray& m_svg;
    QXmlStreamReader m_xml;
    QList<Open> m_open;
    DrawingElements m_elements;
    StyleSheetCost m_styles;
    qint64 m_pixels = 0;
};
} // namespace

bool isHarmlessDrawing(const QByteArray& svg, QString* reason)
{
    QString fault = faultOfText(svg);
    if (fault.isEmpty()) {
        fault = DrawingReader(svg).fault();
    }
    if (reason) {
        *reason = fault;
    }
    return fault.isEmpty();
}
} // namespace Korvex::Meridane::Common
