#include "core/section_index.h"

#include <algorithm>

#include "text/text.h"

namespace qel {

LineMark::LineMark(const Line& line, std::string_view first_token, std::uint32_t file)
    : place_{line.start, file, line.is_piece},
      token_size_(static_cast<std::uint32_t>(first_token.size())) {
  first_token.copy(token_, sizeof token_);
}

bool LineMark::matches(std::string_view line) const {
  const std::string_view token = text::first_token(line);
  const std::string_view remembered(token_, std::min<std::size_t>(token_size_, sizeof token_));
  return token.size() == token_size_ && token.substr(0, remembered.size()) == remembered;
}

SectionIndex::Section& SectionIndex::learn_section(std::string_view name, const Line& header) {
  ++learnt_;
  const HashedName hashed(name);
  return *sections_
              .insert(hashed, {{header.start, file_, header.is_piece},
                               {},
                               hashed.hash,
                               static_cast<std::uint32_t>(sections_.size())})
              .value;
}

SectionIndex::Section* SectionIndex::section(std::string_view name) {
  if (last_section_ >= sections_.size() || sections_.name(last_section_) != name) {
    const std::size_t found = sections_.position_of(HashedName(name));
    if (found == NameTable<Section>::kUnknown) {
      return nullptr;
    }
    last_section_ = found;
  }
  return &sections_.value(last_section_);
}

void SectionIndex::note_furthest(const LineMark& line) {
  if (line.place().offset > furthest_.place().offset) {
    furthest_ = line;
  }
}

void SectionIndex::learn_entry(const HashedName& name, const LineMark& line) {
  ++learnt_;
  if (entries_.insert(name, line.place()).is_new) {
    last_entry_ = entries_.size() - 1;
    note_furthest(line);
  }
}

void SectionIndex::learn_position(const HashedName& name, const LineMark& line) {
  ++learnt_;
  positions_.insert(name, line);
  note_furthest(line);
}

void SectionIndex::forget() {
  sections_.clear();
  entries_.clear();
  positions_.clear();
  furthest_ = {};
}

}  // namespace qel
