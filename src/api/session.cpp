#include "api/session.h"

bool CQELPROIOBase::AttachDocument(CQELPROIO* document) {
  if (document == nullptr) {
    return false;
  }
  bool all = true;
  for (CQELPROBlockIOBase* block : Blocks()) {
    all = block->AttachDocument(document) && all;
  }
  return all;
}
