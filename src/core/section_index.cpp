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
  return *sections_.insert(HashedName(name), {{header.start, file_, header.is_piece}, {}}).value;
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

HashedName SectionIndex::line_name(Purpose purpose, std::string_view section,
                                   std::string_view key) {
  // Neither part holds a line break, so that no two lines share a name.
  std::string& name = names_[static_cast<std::size_t>(purpose)];
  name.assign(section).push_back('\n');
  return HashedName(name.append(key));
}

void SectionIndex::note_furthest(const Line& line, std::string_view first_token) {
  if (line.start > furthest_.place().offset) {
    furthest_ = mark(line, first_token);
  }
}

void SectionIndex::learn_entry(const HashedName& name, const Line& line,
                               std::string_view first_token) {
  ++learnt_;
  if (entries_.insert(name, {line.start, file_, line.is_piece}).is_new) {
    note_furthest(line, first_token);
  }
}

void SectionIndex::learn_position(const HashedName& name, const Line& line,
                                  std::string_view first_token) {
  ++learnt_;
  positions_.insert(name, mark(line, first_token));
  note_furthest(line, first_token);
}

void SectionIndex::forget() {
  sections_.clear();
  entries_.clear();
  positions_.clear();
  furthest_ = {};
}

}  // namespace qel
