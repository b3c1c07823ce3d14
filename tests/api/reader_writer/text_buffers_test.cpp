#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <tuple>
#include <type_traits>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"
#include "members/every_call.h"
#include "support/scratch.h"

// Where the texts stand that members hand out: each kind has a buffer of its own, which the next
// read of its kind writes over and no other read, and each thread has its own of each.

namespace qelpro_test {
namespace {

// A member of either class that hands out a text.
struct TextMember {
  std::string name;
  std::string kind;  ///< Members of one kind share a buffer.
  std::function<const char*(const std::string& path)> read;
};

std::ostream& operator<<(std::ostream& out, const TextMember& member) { return out << member.name; }

template <class Argument>
struct Held {
  static constexpr bool kIsText = false;  // not called
};
template <>
struct Held<int> {
  static int pass() { return 1; }
  static constexpr bool kIsText = false;
};
template <class Character>
struct HeldText {
  Character* value = nullptr;
  Character*& pass() { return value; }
  [[nodiscard]] const char* text() const { return value; }
  static constexpr bool kIsText = true;
};
template <>
struct Held<char*&> : HeldText<char> {};
template <>
struct Held<const char*&> : HeldText<const char> {};
template <class Number>
struct HeldNumber {
  Number value{};
  Number& pass() { return value; }
  static constexpr bool kIsText = false;
};
template <>
struct Held<int&> : HeldNumber<int> {};
template <>
struct Held<double&> : HeldNumber<double> {};
template <>
struct Held<bool&> : HeldNumber<bool> {};
template <>
struct Held<QELPRO_MMM_MECHANICAL&> {
  QELPRO_MMM_MECHANICAL value{{}, {}, nullptr};
  QELPRO_MMM_MECHANICAL& pass() { return value; }
  [[nodiscard]] const char* text() const { return value.name; }
  static constexpr bool kIsText = true;
};

bool open(CQELPROReader_Manipulator& reader, const std::string& path) {
  return reader.SetFilePath(path.c_str());
}
bool open(CPROIO_Manipulator& object, const std::string& path) {
  return object.SetFilePath(path.c_str());
}

// Takes those members that yield a text and are given numbers alone.
template <class... Arguments>
struct With {
  template <class Object>
  static void add(std::vector<TextMember>& members, const char* name, const char* whole_text_kind,
                  bool (Object::*member)(Arguments...)) {
    if constexpr ((Held<Arguments>::kIsText + ... + 0) == 1 &&
                  ((std::is_reference_v<Arguments> || std::is_same_v<Arguments, int>)&&...)) {
      const auto read = [member](const std::string& path) {
        Object object;
        std::tuple<Held<Arguments>...> held;
        const char* text = nullptr;
        if (open(object, path) &&
            std::apply([&](auto&... each) { return (object.*member)(each.pass()...); }, held)) {
          std::apply(
              [&text](const auto&... each) {
                const auto take = [&text](const auto& one) {
                  if constexpr (std::remove_reference_t<decltype(one)>::kIsText) {
                    text = one.text();
                  }
                };
                (take(each), ...);
              },
              held);
        }
        return text;
      };
      const bool is_whole =
          sizeof...(Arguments) == 1 && !(std::is_same_v<Arguments, QELPRO_MMM_MECHANICAL&> || ...);
      members.push_back({name, is_whole ? whole_text_kind : name, read});
    }
  }
};

// Members whose kind is another one's.
std::string kind_of(const std::string& member, const std::string& kind) {
  const std::pair<const char*, const char*> kShared[] = {
      {"Object.GetBCSetting", "Object.GetBCCountName"},
      {"MoldTemperatureBCX_ReadName", "a text of the engine"},
  };
  for (const auto& [one, other] : kShared) {
    if (member == one) {
      return other;
    }
  }
  return kind;
}

std::vector<TextMember> list_members() {
  std::vector<TextMember> members;
#define MEMBER(name, ...)                                                                   \
  With<__VA_ARGS__>::add<CQELPROReader_Manipulator>(members, #name, "a text of the engine", \
                                                    &CQELPROReader_Manipulator::name);
#include "Reader_members.inc"
#undef MEMBER
#define MEMBER(name, ...)                                                                      \
  With<__VA_ARGS__>::add<CPROIO_Manipulator>(members, "Object." #name, "a text of the object", \
                                             &CPROIO_Manipulator::name);
#include "Object_members.inc"
#undef MEMBER
  members.push_back({"ReadString", "a text of the engine", [](const std::string& path) {
                       CQELPROReader_Manipulator reader;
                       char* value = nullptr;
                       open(reader, path) &&
                           reader.ReadString("[FileHeader]", "Remark", value, nullptr, 0);
                       return value;
                     }});
  members.push_back({"ReadValue", "ReadValue", [](const std::string& path) {
                       CQELPROReader_Manipulator reader;
                       char* value = nullptr;
                       open(reader, path) &&
                           reader.ReadValue("[FileHeader]", "Remark", value, nullptr, 0);
                       return value;
                     }});
  std::erase_if(members, [](const TextMember& member) {
    return member.name == "Object.GetFilePath";  // the caller's own text
  });
  for (TextMember& member : members) {
    member.kind = kind_of(member.name, member.kind);
  }
  // Of two forms of one name the second has a name of its own.
  for (std::size_t index = 1; index < members.size(); ++index) {
    if (members[index].name == members[index - 1].name) {
      members[index].kind += members[index].name == "Object.GetMoldbase" ||
                                     members[index].name == "Object.GetMoldMetalMaterial"
                                 ? ""
                                 : " of more fields";
      members[index].name += " of more fields";
    }
  }
  return members;
}

const std::vector<TextMember>& text_members() {
  static const std::vector<TextMember> members = list_members();
  return members;
}

// A text that is a whole value stands until the next read of anything through an object of its
// class.
bool is_written_over_by_any(const TextMember& member, const TextMember& other) {
  const bool is_objects = other.name.rfind("Object.", 0) == 0;
  return member.kind == (is_objects ? "a text of the object" : "a text of the engine") &&
         other.name != "ReadValue";
}

class TextBuffers : public testing::Test {
 protected:
  // A file with every key, in whose texts the word stands.
  std::string file(const std::string& word) {
    const std::string path = scratch_.path(word);
    CQELPROWriter_Manipulator writer;
    EXPECT_TRUE(writer.SetFilePath(path.c_str()));
    const Around nothing{[] {}, [] {}};
    for (const auto& call : writer_calls()) {
      call.make(writer, nothing);
    }
    char* name = name_.assign(word).data();
    EXPECT_TRUE(writer.Coolant_WriteCoolant(1, 2, 3, 4, 5, name, 6, 7, 1));
    EXPECT_TRUE(writer.Moldbase_WriteMoldbase(1, 2, 3, name, 4, 5, 6, 1));
    EXPECT_TRUE(writer.MoldMetalMaterial_WriteMaterial(1, 2, 3, name, 4, 5, 6, 1));
    EXPECT_TRUE(
        writer.WriteString("[CaeHeader]", "FileVersion", word == "first" ? "1010" : "1011"));
    EXPECT_TRUE(writer.WriteString("[FileHeader]", "Date", name));
    EXPECT_TRUE(writer.WriteString("[Project]", "MeshID", name));
    std::string bytes = bytes_of(path);
    for (std::size_t at = 0; (at = bytes.find("string", at)) != std::string::npos;) {
      bytes.replace(at, 6, word);
    }
    for (const char* start : {"\ta text", "\"a text", " 1.5x"}) {
      for (std::size_t at = 0; (at = bytes.find(start, at)) != std::string::npos;) {
        bytes.replace(at + 1, 1, word);
      }
    }
    put_bytes(path, bytes);
    return path;
  }
  Scratch scratch_;
  std::string name_;
};

TEST_F(TextBuffers, AreOneForEachKind) {
  const std::string first = file("first");
  const std::string second = file("second");
  ASSERT_GT(text_members().size(), 50U);
  for (const TextMember& member : text_members()) {
    const char* const text = member.read(first);
    ASSERT_NE(text, nullptr) << member;
    const std::string before = text;
    EXPECT_NE(before, "") << member;
    EXPECT_NE(member.read(second), std::string()) << member;
    EXPECT_NE(before, text) << member << ": the next read of its kind has another text";
    for (const TextMember& other : text_members()) {
      ASSERT_EQ(member.read(first), before) << member;
      const char* const other_text = other.read(second);
      if (other.kind == member.kind) {
        EXPECT_EQ(static_cast<const void*>(other_text), text) << member << " and " << other;
      } else if (!is_written_over_by_any(member, other)) {
        EXPECT_EQ(text, before) << member << " after " << other;
      }
    }
  }
}

// Runs the steps of two threads in turn: one of the first, one of the second, and so on.
void alternate(const std::vector<std::function<void()>>& first,
               const std::vector<std::function<void()>>& second) {
  std::mutex mutex;
  std::condition_variable turned;
  std::size_t turn = 0;
  const auto run = [&](const std::vector<std::function<void()>>& steps, std::size_t parity) {
    for (std::size_t step = 0; step < steps.size(); ++step) {
      std::unique_lock lock(mutex);
      turned.wait(lock, [&] { return turn == 2 * step + parity; });
      steps[step]();
      ++turn;
      turned.notify_all();
    }
  };
  std::thread one([&] { run(first, 0); });
  std::thread other([&] { run(second, 1); });
  one.join();
  other.join();
}

TEST_F(TextBuffers, AreOneForEachThread) {
  const std::string paths[] = {file("first"), file("second")};
  for (const TextMember& member : text_members()) {
    const char* texts[2] = {};
    std::string before[2];
    const auto read = [&](int thread) {
      texts[thread] = member.read(paths[thread]);
      ASSERT_NE(texts[thread], nullptr) << member;
      before[thread] = texts[thread];
    };
    const auto is_kept = [&](int thread) {
      EXPECT_EQ(texts[thread], before[thread]) << member << " on thread " << thread;
    };
    alternate({[&] { read(0); }, [&] { is_kept(0); }, [&] { read(0); }, [&] { is_kept(0); }},
              {[&] { read(1); }, [&] { is_kept(1); }, [&] { is_kept(1); }, [&] { is_kept(1); }});
    EXPECT_NE(before[0], before[1]) << member;
    EXPECT_NE(static_cast<const void*>(texts[0]), texts[1]) << member;
  }
}

}  // namespace
}  // namespace qelpro_test
