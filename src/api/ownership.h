#pragma once

#include "api/members.h"
#include "api/session.h"

/// What the exported reader and writer do with their sessions.
namespace qel {

/// Null when there is no memory for one.
template <class Kind>
Kind* make_session() {
  try {
    return new Kind;
  } catch (...) {
    return nullptr;
  }
}

template <class Kind>
Kind* share(Kind* session) {
  if (session != nullptr) {
    session->AddOwner();
  }
  return session;
}

inline void release(CQELPROIOBase* session) {
  if (session != nullptr && session->DropOwner()) {
    delete session;
  }
}

template <class Path>
bool open(CQELPROIOBase& session, Path path, int mode) {
  return attempt([&] {
    return session.document().SetFilePath(path, mode) &&
           session.AttachDocument(&session.document());
  });
}

inline bool lend(CQELPROIOBase& session, std::FILE*& stream) {
  return attempt([&] {
    return session.document().SetFilePtr(stream) && session.AttachDocument(&session.document());
  });
}

}  // namespace qel
