#pragma once

#include <svn_pools.h>

namespace veldra::subversion {

/// Memory that libsvn fills and that goes as a whole.
class Pool {
 public:
  explicit Pool(apr_pool_t* parent = nullptr) : m_pool(svn_pool_create(parent)) {}
  Pool(const Pool&) = delete;
  Pool& operator=(const Pool&) = delete;
  ~Pool() { svn_pool_destroy(m_pool); }

  operator apr_pool_t*() const { return m_pool; }
  void clear() { svn_pool_clear(m_pool); }

 private:
  apr_pool_t* m_pool;
};

}  // namespace veldra::subversion
