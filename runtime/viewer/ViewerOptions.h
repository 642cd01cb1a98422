#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Korvex::Meridane::Display {
/** What the command line of the viewer asks for. */
struct ViewerOptions
{
    /** What the command line turned out to be. */
    enum class Result
    {
        Run,
        /** Help was asked for: message is the help. */
        Help,
        /** Wrong usage: message says what is wrong. */
        Wrong
    };

    Result result = Result::Wrong;
    QString message;
    /** Without a window and a folder: what is to be shown comes over the standard input. */
    bool live = false;
    /** The folder of the export. */
    QString folder;
    /** The screen to be shown; empty for the first. */
    QString screen;
    /** The picture file to be written instead of showing a window; empty to show one. */
    QString grabFile;
    /** The title of the window; empty for the folder's name. */
    QString title;
    /** Further folders in which QML modules are looked for. */
    QStringList importPaths;
};

/** Reads @p arguments, the first of which is the program's name. Needs no application object. */
[[nodiscard]] ViewerOptions parseViewerOptions(const QStringList& arguments);
} // namespace Korvex::Meridane::Display
