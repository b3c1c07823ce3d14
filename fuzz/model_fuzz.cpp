#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "core/document.h"
#include "support.h"
#include "support/naive_document.h"

// Any file, and a sequence of stores and lookups of every kind: after each the result, the text and
// the bytes of the file are those of the naive model.

namespace naive = qelpro_test::naive;
using naive::Answer;
using qelpro_fuzz::fail;

namespace {

constexpr std::size_t kLongestFile = 1500;

// What a step is about. Most names are words that stand in the file.
struct Step {
  int kind = 0;
  std::string section, key, value;
  int index = -1;
};

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string description(const Step& step) {
  return "step of kind " + std::to_string(step.kind) + ": " + quoted(step.section) + " " +
         quoted(step.key) + " " + quoted(step.value) + " " + std::to_string(step.index);
}

class Trial {
 public:
  explicit Trial(FuzzedDataProvider& input) : input_(input) {
    bytes_ = input.ConsumeRandomLengthString(kLongestFile);
    if (input.ConsumeIntegralInRange(0, 15) == 1) {  // a line that is too long, or nearly
      const auto at = input.ConsumeIntegralInRange<std::size_t>(0, bytes_.size());
      bytes_.insert(at, input.ConsumeIntegralInRange<std::size_t>(4060, 4110), 'w');
    }
    path_ = qelpro_fuzz::file_with(bytes_);
    writing_.SetFilePath(path_, CQELPROIO::kWriting);
    read_anew();
  }

  void run() {
    constexpr int kMostSteps = 24;
    for (int count = 0; count < kMostSteps && (count < 2 || input_.remaining_bytes() > 0);
         ++count) {
      const Step step = next_step();
      if (step.kind < 4) {
        store(step);
      } else if (step.kind == 7) {
        read_anew();
      } else {
        look(step);
      }
    }
  }

 private:
  std::string word() {
    static const char* const kWords[] = {"[A]", "[B]", "[Flow-1]", "[SURFACE", "x", "FR-1", ""};
    if (input_.ConsumeIntegralInRange(0, 3) != 0 && !bytes_.empty()) {
      const auto at = input_.ConsumeIntegralInRange<std::size_t>(0, bytes_.size() - 1);
      const std::size_t begin = bytes_.rfind('\n', at) + 1;
      return bytes_.substr(begin, bytes_.find_first_of(" \t=\r\n", begin) - begin);
    }
    return input_.ConsumeBool() ? input_.PickValueInArray(kWords)
                                : input_.ConsumeRandomLengthString(12);
  }

  Step next_step() {
    Step step;
    step.kind = input_.ConsumeIntegralInRange(0, 7);
    step.section = word();
    step.key = word();
    step.value = input_.ConsumeRandomLengthString(40);
    if (input_.ConsumeIntegralInRange(0, 40) == 1) {
      step.value.append(input_.ConsumeIntegralInRange<std::size_t>(4050, 4100), 'v');
    }
    step.index =
        input_.ConsumeIntegralInRange(0, 3) == 1 ? input_.ConsumeIntegralInRange(0, 8) : -1;
    for (std::string* text : {&step.section, &step.key, &step.value}) {
      text->resize(std::strlen(text->c_str()));
    }
    return step;
  }

  [[noreturn]] void disagree(const Step& step, const std::string& what, const std::string& engine,
                             const std::string& model) {
    fail(what + " of " + description(step) + "\nin " + quoted(before_) + "\nis " + quoted(engine) +
         "\nand not " + quoted(model));
  }

  void compare(const Step& step, const char* what, const Answer& engine, const Answer& model) {
    if (!(engine == model)) {
      disagree(step, what, std::to_string(engine.result) + " " + engine.text,
               std::to_string(model.result) + " " + model.text);
    }
  }

  void store(const Step& step) {
    before_ = bytes_;
    int expected = 0;
    int result = 0;
    switch (step.kind) {
      case 0:
        expected = naive::store(bytes_, step.section, step.key, step.value, step.index, true);
        result = qel::to_int(writing_.SetValue(step.section, step.key, step.value, step.index));
        break;
      case 1:
        expected = naive::insert(bytes_, step.section, step.key, step.value);
        result = qel::to_int(writing_.InsertValue(path_, step.section, step.key, step.value));
        break;
      case 2:
        expected = naive::replace(bytes_, step.section, step.key, step.value);
        result = qel::to_int(writing_.ReplaceValue(step.section, step.key, step.value));
        break;
      default: {
        expected = naive::store(bytes_, step.section, step.key, step.value, -1, false);
        std::FILE* stream = std::fopen(path_, "r+");
        CQELPROIO lent;
        lent.SetFilePtr(stream);
        result = qel::to_int(lent.SetValue(step.section, step.key, step.value, -1));
        std::fclose(stream);
        break;
      }
    }
    if (result != expected) {
      disagree(step, "the result", std::to_string(result), std::to_string(expected));
    }
    if (const std::string after = qelpro_fuzz::bytes_of_file(); after != bytes_) {
      disagree(step, "the file", after, bytes_);
    }
    if (result == naive::kDone && step.kind == 0 && step.index < 0) {
      const Answer read = look(writing_, step, -1);
      compare(step, "the lookup after a store", read, {naive::kDone, naive::read_back(step.value)});
    }
    // A reader that is open forgets what it learnt where its file was written.
    known_ = naive::Reading();
    if (bytes_ == before_) {
      read_anew();
    }
  }

  void look(const Step& step) {
    before_ = bytes_;
    const auto& [kind, section, key, value, index] = step;
    compare(step, "the lookup in a session", look(*reading_, step, index),
            known_.look(bytes_, section, key, index));
    if (index < 0) {
      // What a session learnt changes no lookup of a key.
      compare(step, "the lookup in a session", look(*reading_, step, -1),
              naive::Reading().look(bytes_, section, key, -1));
    }
    compare(step, "the lookup of a writer", look(writing_, step, index),
            naive::plain(bytes_, section, key, index));
    std::FILE* stream = std::fopen(path_, "r");
    {
      CQELPROIO lent;
      lent.SetFilePtr(stream);
      compare(step, "the lookup in a stream", look(lent, step, index),
              naive::plain(bytes_, section, key, index));
      compare(step, "the single lookup in a stream", look_once(lent, step),
              naive::plain(bytes_, section, key, -1));
      const auto buffer = qel::ValueBuffer::of_thread_for_scans();
      const bool found = lent.ScanValue(path_, section, key, buffer);
      compare(step, "the lookup over the whole text",
              {found ? naive::kDone : 0, found ? buffer.text : ""},
              naive::whole_text(bytes_, section, key));
    }
    std::fclose(stream);
    compare(step, "the single lookup by path", look_once(*reading_, step),
            naive::once(bytes_, section, key));
    if (qelpro_fuzz::bytes_of_file() != bytes_) {
      fail("reading changed the file");
    }
  }

  static Answer look(CQELPROIO& document, const Step& step, int index) {
    char* value = nullptr;
    const int result = qel::to_int(document.GetValue(step.section, step.key, value, index));
    return {result, result == naive::kDone ? value : ""};
  }

  static Answer look_once(CQELPROIO& document, const Step& step) {
    const auto value = qel::ValueBuffer::of_thread();
    const int result = qel::to_int(document.ReadOnce(step.section, step.key, value));
    return {result, result == naive::kDone ? value.text : ""};
  }

  void read_anew() {
    reading_ = std::make_unique<CQELPROIO>();
    known_ = naive::Reading();
    if (!reading_->SetFilePath(path_, CQELPROIO::kReading)) {
      fail("a file was not opened");
    }
  }

  FuzzedDataProvider& input_;
  std::string bytes_;
  std::string before_;
  const char* path_ = nullptr;
  CQELPROIO writing_;
  std::unique_ptr<CQELPROIO> reading_;
  naive::Reading known_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  Trial(input).run();
  return 0;
}
