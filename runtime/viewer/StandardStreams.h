#pragma once

#include <QtCore/QByteArray>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
struct LiveMessage;
} // namespace Korvex::Meridane::Common

/** Messages over the standard input and output of this program. */
namespace Korvex::Meridane::Display::StandardStreams {
/**
 * Reads messages on a thread of its own and hands each to @p handle on the thread of @p context, which lives as long as
 * the program. When the input ends, or is no message, the program is asked to quit; where it does not in time, it ends.
 */
void readMessages(QObject* context, const std::function<void(const Common::LiveMessage&)>& handle);

/** Writes @p bytes; waits until they are taken. */
void write(const QByteArray& bytes);
} // namespace Korvex::Meridane::Display::StandardStreams
