#include "host/common/LiveMessage.h"

#include <QMap>
#include <QRect>
#include <QStringList>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

/// Messages arrive whole and in order, in whatever pieces they come.
class tst_LiveMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyPiecesMakeTheSameMessages()
    {
        QVERIFY(rc::check([] {
            const auto texts = *rc::gen::container<std::vector<std::string>>(rc::gen::arbitrary<std::string>());
            QByteArray stream;
            for (std::size_t i = 0; i < texts.size(); ++i)
                stream +=
                    LiveMessage::compose(LiveMessage::Kind::Warnings, QByteArray::fromStdString(texts[i]), quint32(i));
            LiveMessageReader reader;
            std::size_t read = 0;
            qsizetype sent = 0;
            while (true) {
                while (const auto message = reader.next()) {
                    QByteArray text;
                    quint32 number = 0;
                    RC_ASSERT(message->kind == LiveMessage::Kind::Warnings);
                    RC_ASSERT(message->read(text, number));
                    RC_ASSERT(text == QByteArray::fromStdString(texts[read]));
                    RC_ASSERT(number == read);
                    ++read;
                }
                if (sent >= stream.size())
                    break;
                const qsizetype length = *rc::gen::inRange<qsizetype>(1, 40);
                reader.add(stream.mid(sent, length));
                sent += length;
            }
            RC_ASSERT(read == texts.size());
            RC_ASSERT(!reader.isBroken());
        }));
    }

    void everyKindOfValueComesBack()
    {
        LiveMessageReader reader;
        const QMap<QString, QByteArray> elements{{QStringLiteral("a"), "QML"}, {QStringLiteral("ü"), QByteArray()}};
        reader.add(LiveMessage::compose(LiveMessage::Kind::Elements, quint32(7), elements));
        reader.add(LiveMessage::compose(LiveMessage::Kind::Frame, QSize(3, 2), QRect(1, 1, 2, 1), QByteArray(8, 'x')));
        reader.add(LiveMessage::compose(LiveMessage::Kind::FrameTaken));
        auto message = reader.next();
        quint32 number = 0;
        QMap<QString, QByteArray> read;
        QVERIFY(message && message->read(number, read));
        QCOMPARE(number, 7u);
        QCOMPARE(read, elements);
        message = reader.next();
        QSize size;
        QRect part;
        QByteArray pixels;
        QVERIFY(message && message->read(size, part, pixels));
        QCOMPARE(size, QSize(3, 2));
        QCOMPARE(part, QRect(1, 1, 2, 1));
        QCOMPARE(pixels.size(), 8);
        message = reader.next();
        QVERIFY(message && message->kind == LiveMessage::Kind::FrameTaken && message->read());
        QVERIFY(!reader.next());
    }

    void otherValuesAreNotRead()
    {
        LiveMessageReader reader;
        reader.add(LiveMessage::compose(LiveMessage::Kind::Scale, 2.0));
        const auto message = reader.next();
        QVERIFY(message);
        double scale = 0;
        QString text;
        QVERIFY(!message->read(scale, text)); // more than there is
        quint8 byte = 0;
        QVERIFY(!message->read(byte)); // less than there is
        QVERIFY(message->read(scale));
        QCOMPARE(scale, 2.0);
    }

    void whatIsNoMessageEndsTheReading()
    {
        LiveMessageReader reader;
        reader.add(QByteArray("\xff\xff\xff\xff\x01", 5));
        QVERIFY(!reader.next());
        QVERIFY(reader.isBroken());
        reader.add(LiveMessage::compose(LiveMessage::Kind::FrameTaken));
        QVERIFY(!reader.next());
    }
};

QTEST_GUILESS_MAIN(tst_LiveMessage)
#include "tst_LiveMessage.moc"
