#pragma once

#include <functional>
#include <string>

namespace veldra {

/// Asks a question whose answer may hold for all that follow. `answer` is where it is remembered:
/// "yes", "no", "yestoall", "notoall" or "cancel"; an answer for all answers at once and nobody is
/// asked. `MessageBox::AnswerYes`, `AnswerNo` or `AnswerCancel`.
int askRemembering(std::string& answer, const std::function<std::string()>& ask);

}  // namespace veldra
