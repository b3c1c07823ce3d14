#pragma once

#include "api/members.h"
#include "api/session.h"
#include "objects/owners.h"

/// What the exported reader and writer do with their sessions.
namespace qel {

/// Null when there is no memory for one.
template <class Kind>
Kind* make_session() {
  Kind* session = nullptr;
  attempt([&session] { return (session = new Kind) != nullptr; });
  return session;
}

template <class Path>
bool open(CQELPROIOBase& session, Path path, int mode) {
  return attempt([&] {
    return session.document().SetFilePath(path, mode) &&
           session.AttachDocument(&session.document());
  });
}

inline void close(CQELPROIOBase& session) {
  give_back([&session] { session.document().CloseFile(); });
}

inline bool lend(CQELPROIOBase& session, std::FILE*& stream) {
  return attempt([&] {
    return session.document().SetFilePtr(stream) && session.AttachDocument(&session.document());
  });
}

}  // namespace qel
