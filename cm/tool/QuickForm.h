#pragma once

#include "cm/core/CMArgument.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

/// The quick form of a template: another one of the same name with "Quick" at its end. It starts
/// one program that does what nearly always has to be done. Where that does not end well, what it
/// said is forgotten, and the ordinary template finds out why.
///
/// True when the tool has a quick form for these arguments, which is not empty, and it has ended
/// well; `answer` then holds what it printed. Otherwise `answer` stays as it was.
bool runQuickForm(const CommandTemplate& ordinary, ArgumentList& arguments, const OperationRow& row,
                  ToolAnswer& answer);

}  // namespace veldra
