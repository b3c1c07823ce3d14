#pragma once

#include <string_view>

#include "QELPROEngine/CQELPROReader_Manipulator.h"
#include "QELPROEngine/CQELPROWriter_Manipulator.h"
#include "api/session.h"
#include "objects/attempt.h"
#include "objects/null.h"

/// What every exported section member does: hand its arguments to the session's block of that
/// section.
namespace qel {

using Session = CQELPROIOBase;

/// A section or key of null is one without characters, which no line has.
inline std::string_view name_of(const char* text) {
  return text != nullptr ? std::string_view(text) : std::string_view();
}

/// Whether the work of a session's block was done.
template <class Block, class Work>
bool done_by(Session* session, Work work) {
  return session != nullptr &&
         attempt([&] { return work(session->block<Block>()) == Result::done; });
}

template <class Block, class Encoding, class... Values>
bool read(Session* session, const char* key, Place place, Values&... values) {
  return done_by<Block>(
      session, [&](Block& block) { return block.template Read<Encoding>(key, place, values...); });
}

/// A null text is never written.
template <class Block, class Encoding, class... Values>
bool write(Session* session, const char* key, Place place, Values... values) {
  return !any_is_null(values...) && done_by<Block>(session, [&](Block& block) {
    return block.template Write<Encoding>(key, place, values...);
  });
}

}  // namespace qel
