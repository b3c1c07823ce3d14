#pragma once

#include <atomic>

#include "blocks/sections.h"
#include "core/document.h"

/// What serves one exported reader or writer: one block of each section kind, and the
/// document that they share.
class CQELPROIOBase {
 public:
  CQELPROIOBase() = default;
  CQELPROIOBase(const CQELPROIOBase&) = delete;
  CQELPROIOBase& operator=(const CQELPROIOBase&) = delete;
  virtual ~CQELPROIOBase() = default;

  /// Attaches the document to every block, whatever each answers; true when all of them took it.
  /// Null changes nothing.
  bool AttachDocument(CQELPROIO* document);

  [[nodiscard]] CQELPROIO& document() { return document_; }

  /// The block of a section kind.
  template <class Block>
  [[nodiscard]] Block& block() {
    return blocks_;
  }

  /// The blocks in the order in which they are attached.
  [[nodiscard]] auto Blocks() { return blocks_.all(); }

  /// Copies of an exported object share its session.
  std::atomic<int> owners{1};

 private:
  qel::SectionBlocks blocks_;
  CQELPROIO document_;
};

class CQELPROReader : public CQELPROIOBase {};

class CQELPROWriter : public CQELPROIOBase {};
