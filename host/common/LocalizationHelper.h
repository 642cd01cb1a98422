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
};
} // namespace Korvex::Meridane::Common
