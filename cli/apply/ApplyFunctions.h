#pragma once

#include "cli/apply/ApplyResult.h"

/// The operations, by the file in which they stand. Each reads its arguments, refuses what does not fit, and does its
/// work.
namespace Korvex::Meridane::Designer {

class ApplySession;
class EditArguments;

// ApplyScreens.cpp
[[nodiscard]] ApplyResult applyAddScreen(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRemoveScreen(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyDuplicateScreen(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyResizeScreen(ApplySession& session, EditArguments& arguments);

// ApplyElements.cpp
[[nodiscard]] ApplyResult applyAdd(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRemove(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applySelect(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRotate(ApplySession& session, EditArguments& arguments);

// ApplyArrange.cpp
[[nodiscard]] ApplyResult applyAlign(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyDistribute(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applySameSize(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyCenter(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyGroup(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyUngroup(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyOrder(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyLock(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyUnlock(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyHide(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyShow(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyDuplicate(ApplySession& session, EditArguments& arguments);

// ApplyImages.cpp
[[nodiscard]] ApplyResult applyImportImage(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRenameImage(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyReplaceImage(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRemoveImage(ApplySession& session, EditArguments& arguments);

// ApplyFonts.cpp
[[nodiscard]] ApplyResult applyImportFont(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRemoveFont(ApplySession& session, EditArguments& arguments);

// ApplyValues.cpp
[[nodiscard]] ApplyResult applySet(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyGet(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyQml(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyBounds(ApplySession& session, EditArguments& arguments);

// ApplyInput.cpp
[[nodiscard]] ApplyResult applyHandle(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyDrag(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyKey(ApplySession& session, EditArguments& arguments);

// ApplyHistory.cpp
[[nodiscard]] ApplyResult applyUndo(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyRedo(ApplySession& session, EditArguments& arguments);
[[nodiscard]] ApplyResult applyUndoCount(ApplySession& session, EditArguments& arguments);

} // namespace Korvex::Meridane::Designer
