#include "blocks/part_insert_contact_angle.h"

#include <charconv>
#include <map>
#include <optional>
#include <string_view>

using qel::Result;
namespace {

// Whether a key is a group's number as the members spell it: "1", not "01".
bool is_number(std::string_view key, int& number) {
  const char* end = key.data() + key.size();
  const auto parsed = std::from_chars(key.data(), end, number);
  return parsed.ec == std::errc() && parsed.ptr == end && key.front() >= '1' && key.front() <= '9';
}

// What lookups of the groups 1, 2, 3, ... come to, without a scan for each: of every number the
// first line counts, in whatever order the numbers stand.
class GroupSearch {
 public:
  GroupSearch(const std::string& wanted, int count) : wanted_(wanted), count_(count) {}

  // False once the search is at its end.
  bool goes_on(std::string_view key, std::string_view value) {
    int number = 0;
    if (!is_number(key, number) || number < next_ || number > count_ || waiting_.contains(number)) {
      return true;
    }
    Group group;
    std::string name;
    group.has_name = qel::ContactAngle::scan(std::string(value).c_str(), name, group.angle);
    group.is_wanted = group.has_name && name == wanted_;
    waiting_.emplace(number, group);
    return pass_those_in_order();
  }

  [[nodiscard]] std::optional<double> angle() const { return angle_; }

 private:
  struct Group {
    bool has_name = false;
    bool is_wanted = false;
    double angle = 0;
  };

  bool pass_those_in_order() {
    for (auto group = waiting_.begin(); group != waiting_.end() && group->first == next_;
         group = waiting_.erase(group)) {
      if (group->second.is_wanted) {
        angle_ = group->second.angle;
        return false;
      }
      if (!group->second.has_name || next_ == count_) {
        return false;
      }
      ++next_;
    }
    return true;
  }

  const std::string& wanted_;
  int count_;
  int next_ = 1;
  std::map<int, Group>
      waiting_;  // groups from the next one on; ordered, so that no choice of numbers is slow
  std::optional<double> angle_;
};

}  // namespace

qel::Result CQELPROBlockIOPartInsertContactAngle::ReadGroup(int group, std::string& name,
                                                            double& angle) {
  char* text = nullptr;
  const qel::Result result = FindText(qel::key_of(qel::part_insert_contact_angle::kKeys, "%d"),
                                      qel::at_point(group), text);
  if (result != Result::done) {
    return result;
  }
  return qel::ContactAngle::scan(text, name, angle) ? Result::done : Result::absent;
}

qel::Result CQELPROBlockIOPartInsertContactAngle::ReadAngle(int group, double& angle) {
  std::string name;
  return ReadGroup(group, name, angle);
}

qel::Result CQELPROBlockIOPartInsertContactAngle::ReadAngle(const char* name, double& angle) {
  const std::string wanted(name);
  int count = 0;
  Read<qel::Integer>(qel::key_of(qel::part_insert_contact_angle::kKeys, "GroupCount"), {}, count);
  if (count < 1) {
    return Result::absent;
  }
  return document() != nullptr && document()->scans_plainly() ? FindInOneScan(wanted, count, angle)
                                                              : FindByLookups(wanted, count, angle);
}

qel::Result CQELPROBlockIOPartInsertContactAngle::FindByLookups(const std::string& wanted,
                                                                int count, double& angle) {
  std::string group_name;
  double group_angle = 0;
  for (int group = 1; group <= count; ++group) {
    const qel::Result result = ReadGroup(group, group_name, group_angle);
    if (result != Result::done) {
      return result;
    }
    if (group_name == wanted) {
      angle = group_angle;
      return result;
    }
    if (group == count) {
      break;  // the count may be the largest integer
    }
  }
  return Result::absent;
}

qel::Result CQELPROBlockIOPartInsertContactAngle::FindInOneScan(const std::string& wanted,
                                                                int count, double& angle) {
  std::optional<GroupSearch> search;
  const Result result = document()->VisitEntries(
      name(), [&] { search.emplace(wanted, count); },
      [&search](std::string_view key, std::string_view value) {
        return search->goes_on(key, value);
      });
  if (search && search->angle()) {
    angle = *search->angle();
    return Result::done;
  }
  return result == Result::done ? Result::absent : result;
}
