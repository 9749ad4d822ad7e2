#pragma once

#include <QObject>
#include <QString>
#include <QStringDecoder>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace veldra::host::desktop {

/// The CM output on its way from the module and from running tools to whoever shows it.
///
/// The module writes a tool's words when the tool has ended. What the tool prints until then is
/// told beside it as `live`, and `liveEnded` says that the same words follow as `text`.
class OutputSink : public QObject {
  Q_OBJECT

 public:
  OutputSink();
  ~OutputSink() override;

  /// The stream to write to; lives as long as this.
  std::ostream& stream() { return m_stream; }
  void showLive(std::string_view bytes);
  void clear() { emit cleared(); }
  /// Throws away what comes, for work that nobody asked for by name.
  void setQuiet(bool isQuiet) { m_isQuiet = isQuiet; }

 signals:
  void text(const QString& text);
  void live(const QString& text);
  void liveEnded();
  void cleared();

 private:
  class Buffer : public std::streambuf {
   public:
    explicit Buffer(OutputSink& sink) : m_sink(sink) {}

   protected:
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    int overflow(int character) override;
    int sync() override;

   private:
    OutputSink& m_sink;
    std::string m_pending;
  };
  void write(const std::string& bytes);

  Buffer m_buffer{*this};
  std::ostream m_stream{&m_buffer};
  QStringDecoder m_decoder{QStringDecoder::Utf8};
  QStringDecoder m_liveDecoder{QStringDecoder::Utf8};
  bool m_isLive = false;
  bool m_isQuiet = false;
};

}  // namespace veldra::host::desktop
