#include "cm/ui/OptionWindows.h"

#include <memory>

#include "cm/ui/options/CCMCiInfoDlg.h"
#include "cm/ui/options/CCMCoInfoDlg.h"
#include "cm/ui/options/CCMConnectToArc.h"
#include "cm/ui/options/CCMFetchDlg.h"
#include "cm/ui/options/CCMLockInfoDlg.h"
#include "cm/ui/options/CCMSccInfoDlg.h"

namespace veldra {

namespace {

std::unique_ptr<OptionDialog> makeWindow(const OptionPresets& presets, QWidget* parent) {
  switch (presets.window) {
    case OptionWindow::CheckIn:
      return std::make_unique<CCMCiInfoDlg>(presets, parent);
    case OptionWindow::CheckOut:
      return std::make_unique<CCMCoInfoDlg>(presets, parent);
    case OptionWindow::Lock:
      return std::make_unique<CCMLockInfoDlg>(presets, parent);
    case OptionWindow::Connect:
      return std::make_unique<CCMConnectToArc>(parent);
    case OptionWindow::Compare:
      return std::make_unique<CCMFetchDlg>(presets, parent);
    default:
      return std::make_unique<CCMSccInfoDlg>(presets, parent);
  }
}

}  // namespace

std::optional<CommandOptions> showOptionWindow(const OptionPresets& presets, QWidget* parent) {
  const std::unique_ptr<OptionDialog> window = makeWindow(presets, parent);
  if (window->exec() != QDialog::Accepted) return std::nullopt;
  return window->options();
}

}  // namespace veldra
