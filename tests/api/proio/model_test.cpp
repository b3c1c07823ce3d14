#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <random>
#include <string>

#include "QELPROEngine/CPROIO_Manipulator.h"
#include "api/proio/model_steps.h"
#include "api/proio/support.h"
#include "support/line_break.h"
#include "support/naive_older_object.h"

// The object against a naive reading of its text rules.

namespace qelpro_test {
namespace {

class Walk {
 public:
  explicit Walk(unsigned seed) : random_(seed) {}

  std::string contents() {
    static const char* const kPieces[] = {"[Flow-1]\n",
                                          "[Flow-2]\n",
                                          "[Machine]\n",
                                          "FillTime = 1\n",
                                          "FillTime=2\n",
                                          "Remark = any\n",
                                          "\n",
                                          "FR-1 = 1\t2\n",
                                          " FillTime = 3\n",
                                          "FillTime\n",
                                          "[FileHeader]\n",
                                          "Date = x\n",
                                          "x\n",
                                          "[SURFACE ELEMENT BOUNDARY CONDITION NAME]\n",
                                          "1\tTop\n",
                                          "     ",
                                          "Remark = no break",
                                          "[Flow-1] # first\n",
                                          "[Machine] = 5\n",
                                          "[A HEADER OF WORDS]\n",
                                          "[Last]\t\n",
                                          "[SURFACE\n",
                                          "\x1A"};
    std::string text;
    for (int i = pick(12); i > 0; --i) {
      text += kPieces[pick(static_cast<int>(std::size(kPieces)))];
      if (pick(15) == 0) {
        text += std::string(static_cast<std::size_t>(pick(300)), 'y') + "\n";
      }
    }
    // A file without a line break gets the platform's own, and the model knows but one.
    return text.find('\n') == std::string::npos && native("\n") != "\n" ? "\n" + text : text;
  }

  int pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

 private:
  std::mt19937 random_;
};

TEST(SelfContainedObject, AgreesWithANaiveModel) {
  const Scratch scratch;
  int found = 0;
  for (unsigned sequence = 0; sequence < 3000; ++sequence) {
    SCOPED_TRACE(sequence);
    Walk walk(sequence);
    const std::string contents = walk.contents();
    std::string path = scratch.file(contents);
    NaiveOlderObject model(contents);
    CPROIO_Manipulator object;
    object.SetFilePath(path.data());
    for (int step = 0; step < 8; ++step) {
      ASSERT_EQ(step_beside(
                    model, object, [&](int below) { return walk.pick(below); }, found),
                "")
          << "in step " << step << " from " << contents;
      ASSERT_EQ(with_plain_dates(bytes_of(path)), with_plain_dates(model.text()))
          << "after step " << step << " from " << contents;
    }
  }
  EXPECT_GT(found, 1000) << "the reads have something to find";
}

}  // namespace
}  // namespace qelpro_test
