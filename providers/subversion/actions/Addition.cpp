#include "providers/subversion/actions/Addition.h"

#include <svn_io.h>
#include <svn_props.h>

#include <algorithm>
#include <fstream>
#include <string_view>

#include "cm/scc/interface/SccCommands.h"
#include "providers/subversion/actions/WorkingFiles.h"
#include "providers/subversion/runtime/Failure.h"

namespace veldra::subversion {

using namespace scc;

namespace {

constexpr const char* UnknownBytes = "application/octet-stream";
constexpr const char* ExpandedKeywords = "Author Date Id Revision";
constexpr LONG WideText = SCC_FILETYPE_UTF16LE | SCC_FILETYPE_UTF16BE;

/// Whether the head of a text asks for keywords to be filled in.
bool asksForKeywords(const std::string& file) {
  std::string head(4096, '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(stream.gcount()));
  return std::ranges::any_of(
      std::initializer_list<std::string_view>{"$Id", "$Revision", "$Author", "$Date"},
      [&head](std::string_view keyword) {
        const std::size_t at = head.find(keyword);
        if (at == std::string::npos || at + keyword.size() >= head.size()) return false;
        const char next = head[at + keyword.size()];
        return next == '$' || next == ':';
      });
}

bool isDirectory(const std::string& name) {
  const Pool pool;
  svn_node_kind_t kind = svn_node_none;
  check(svn_io_check_path(name.c_str(), &kind, pool));
  return kind == svn_node_dir;
}

bool isBinary(const std::string& file) {
  const Pool pool;
  const char* type = nullptr;
  check(svn_io_detect_mimetype2(&type, file.c_str(), nullptr, pool));
  return type && svn_mime_type_is_binary(type);
}

}  // namespace

Addition::~Addition() {
  try {
    // A directory can only be dropped after what is in it.
    std::ranges::reverse(m_scheduled);
    dropSchedules(m_project, m_scheduled);
  } catch (const std::exception&) {
    m_project.output.warning("Files that could not be added are still scheduled for it.");
  }
}

void Addition::schedule(const std::string& file, LONG flags) {
  const Pool pool;
  const Listening listening(m_project.client, [this](const svn_wc_notify_t& notification) {
    // Directories come before what is in them.
    if (notification.action == svn_wc_notify_add) m_scheduled.push_back(notification.path);
  });
  check(svn_client_add5(file.c_str(), svn_depth_empty, TRUE, TRUE, FALSE, TRUE, m_project.client,
                        pool));
  if (m_scheduled.empty() || m_scheduled.back() != file) m_scheduled.push_back(file);
  if (!isDirectory(file)) setProperties(file, flags);
}

void Addition::setProperties(const std::string& file, LONG flags) {
  setProperty(file, SVN_PROP_NEEDS_LOCK, SVN_PROP_NEEDS_LOCK_VALUE);
  if ((flags & SCC_FILETYPE_BINARY) != 0) {
    setProperty(file, SVN_PROP_MIME_TYPE, UnknownBytes);
  } else if ((flags & SCC_FILETYPE_TEXT) != 0) {
    setProperty(file, SVN_PROP_MIME_TYPE, nullptr);
  }
  const bool isText = (flags & SCC_FILETYPE_TEXT) != 0 ||
                      ((flags & (SCC_FILETYPE_BINARY | WideText)) == 0 && !isBinary(file));
  if (isText && asksForKeywords(file)) setProperty(file, SVN_PROP_KEYWORDS, ExpandedKeywords);
}

void Addition::setProperty(const std::string& file, const char* name, const char* value) {
  const Pool pool;
  const svn_string_t* const text = value ? svn_string_create(value, pool) : nullptr;
  check(svn_client_propset_local(name, text, arrayOf({file}, pool), svn_depth_empty, TRUE, nullptr,
                                 m_project.client, pool));
}

svn_revnum_t Addition::commit(const char* comment) {
  const svn_revnum_t revision =
      m_project.client.commit(m_scheduled, svn_depth_empty, false, comment);
  m_scheduled.clear();
  return revision;
}

}  // namespace veldra::subversion
