#include "host/desktop/session/OutputSink.h"

#include <utility>

namespace veldra::host::desktop {

OutputSink::OutputSink() = default;
OutputSink::~OutputSink() = default;

std::streamsize OutputSink::Buffer::xsputn(const char* bytes, std::streamsize count) {
  m_pending.append(bytes, static_cast<std::size_t>(count));
  return count;
}

int OutputSink::Buffer::overflow(int character) {
  if (character != traits_type::eof()) m_pending.push_back(static_cast<char>(character));
  return traits_type::not_eof(character);
}

int OutputSink::Buffer::sync() {
  if (!m_pending.empty()) m_sink.write(std::exchange(m_pending, {}));
  return 0;
}

void OutputSink::write(const std::string& bytes) {
  if (m_isQuiet) return;
  if (std::exchange(m_isLive, false)) {
    m_liveDecoder.resetState();
    emit liveEnded();
  }
  emit text(m_decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size()))));
}

void OutputSink::showLive(std::string_view bytes) {
  if (m_isQuiet) return;
  m_isLive = true;
  emit live(
      m_liveDecoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size()))));
}

}  // namespace veldra::host::desktop
