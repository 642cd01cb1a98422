#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <optional>

namespace Korvex::Meridane::Common {
/**
 * A message between the designer and the live display that it runs beside the canvas. They go over the standard input and
 * output of the display, each as its length (4 bytes, big-endian), its kind (1 byte) and its values as a QDataStream.
 */
struct LiveMessage
{
    /** What is said; in brackets the values. */
    enum class Kind : quint8
    {
        // To the display.
        /** The folder with the images and fonts, and the size of the display [QString, QSizeF]. */
        Project = 1,
        /** A whole screen [quint32 number, QString id, QByteArray QML, QStringList ids of its elements by z-order]. */
        Screen,
        /** Elements of that screen that changed [quint32 number, QMap<QString, QByteArray>: QML of a file by id]. */
        Elements,
        /** Pixels of a frame for one of the display [double]. */
        Scale,
        /** A mouse event [quint8 QEvent::Type, QPointF pixels of the display, quint32 button, buttons, modifiers]. */
        Mouse,
        /** A turn of the wheel [QPointF, QPoint angle in eighths of a degree, quint32 buttons, modifiers]. */
        Wheel,
        /** The last frame has been taken; the next one may come. */
        FrameTaken,

        // From the display.
        /** A message with that number has been carried out [quint32 number, QStringList what QML complained about]. */
        Done = 64,
        /** What has changed of the picture [QSize of the whole, QRect place, QByteArray ARGB32 premultiplied]. */
        Frame,
        /** What QML complained about while the display ran [QStringList]. */
        Warnings
    };

    Kind kind = Kind::FrameTaken;
    /** The values, to be read with read(). */
    QByteArray values;

    /** The bytes of a message of @p kind with these values. */
    template <typename... Values>
    [[nodiscard]] static QByteArray compose(Kind kind, const Values&... values)
    {
        QByteArray body;
        QDataStream stream(&body, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_6_0);
        ((void)(stream << values), ...);
        return framed(kind, body);
    }

    /** Reads the values; false when the message does not hold them. */
    template <typename... Values>
    [[nodiscard]] bool read(Values&... wanted) const
    {
        QDataStream stream(values);
        stream.setVersion(QDataStream::Qt_6_0);
        ((void)(stream >> wanted), ...);
        return stream.status() == QDataStream::Ok && stream.atEnd();
    }

private:
    [[nodiscard]] MERIDANE_COMMON_EXPORT static QByteArray framed(Kind kind, const QByteArray& body);
};

/** Puts messages together from the pieces in which they arrive. */
class MERIDANE_COMMON_EXPORT LiveMessageReader
{
public:
    /** The longest message that is read, in bytes: several times the frame of any panel. */
    static constexpr quint32 LongestMessage = 512u * 1024 * 1024;

    void add(const QByteArray& bytes);
    /** The next whole message, if there is one. */
    [[nodiscard]] std::optional<LiveMessage> next();
    /** True when the bytes were no messages; nothing more is read then. */
    [[nodiscard]] bool isBroken() const { return m_broken; }

private:
    QByteArray m_bytes;
    qsizetype m_read = 0;
    bool m_broken = false;
};
} // namespace Korvex::Meridane::Common
