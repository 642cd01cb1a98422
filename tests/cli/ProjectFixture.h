#pragma once

#include "tests/cli/MeridaneProgram.h"

#include <QJsonObject>
#include <QTemporaryDir>

/// A project in a temporary folder, made and edited by the program itself.
class ProjectFixture
{
public:
    /// A project of 200 x 100 pixels with the empty screen "main".
    ProjectFixture();

    [[nodiscard]] bool isValid() const { return m_valid; }
    /// The project's folder.
    [[nodiscard]] QString folder() const { return path("project"); }
    /// A path in the temporary folder.
    [[nodiscard]] QString path(const char* name) const { return m_temporary.filePath(QString::fromUtf8(name)); }

    /// Applies \a edits, a JSON array as text, with \a options.
    MeridaneProgram::Result apply(const QByteArray& edits, const QStringList& options = {}) const;
    /// Runs a command on the project: "check" runs "meridane check PROJECT options".
    MeridaneProgram::Result run(const char* command, const QStringList& options = {}) const;

    [[nodiscard]] QByteArray read(const char* file) const;
    void write(const char* file, const QByteArray& content) const;
    [[nodiscard]] QJsonObject readJson(const char* file) const;
    void writeJson(const char* file, const QJsonObject& object) const;
    /// Changes the entry of element \a index in the file of the screen "main".
    void setElementKey(int index, const char* key, const QJsonValue& value) const;
    /// Changes a stored property of element \a index of the screen "main".
    void setStoredValue(int index, const char* property, const QJsonValue& value) const;

    /// Every file below \a folder with its content; to see whether anything changed.
    [[nodiscard]] static QMap<QString, QByteArray> content(const QString& folder);
    [[nodiscard]] QMap<QString, QByteArray> content() const { return content(folder()); }

    /// Edits that add a rectangle "box" at (20, 10), 50 x 40, on the screen "main".
    [[nodiscard]] static QByteArray addBox();

private:
    QTemporaryDir m_temporary;
    bool m_valid = false;
};
