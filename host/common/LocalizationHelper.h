#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/**
 * The road of every text that a user sees. The texts are looked up in the translators installed in the application;
 * without a translation, or without an application, the source text comes back.
 */
class MERIDANE_COMMON_EXPORT LocalizationHelper
{
public:
    LocalizationHelper() = delete;

    /** Context of the texts of the visual elements and their editors. */
    static constexpr const char* VisualDesignerContext = "VisualDesigner";
    /** Context of the host's own texts. */
    static constexpr const char* CoreContext = "Core";

    /** @p text (English) in the user's language, for the texts of the visual elements. */
    [[nodiscard]] static QString visualDesignerString(const QString& text);

    /** @p text (English) in the user's language, for the texts of the host. */
    [[nodiscard]] static QString coreString(const QString& text);

    /**
     * The text for @p count things, in the user's language: @p singular and @p plural are the English forms, both with
     * `%n` where the number stands ("%n element", "%n elements"). A language may have more forms, or fewer; a
     * translation is looked up by @p plural.
     */
    [[nodiscard]] static QString visualDesignerString(const QString& singular, const QString& plural, int count);
    /** As visualDesignerString() with a count, for the texts of the host. */
    [[nodiscard]] static QString coreString(const QString& singular, const QString& plural, int count);
};
} // namespace Korvex::Meridane::Common
