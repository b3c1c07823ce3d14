#include "print_differences.h"

#include "output.h"

namespace qelpro {

void print_differences(const std::vector<Difference>& differences, const Painter& painter) {
  for (const Difference& difference : differences) {
    const DifferenceText text = text_of(difference);
    switch (difference.kind) {
      case Difference::Kind::added:
        painter.print(answer(), text.head, Color::green);
        break;
      case Difference::Kind::removed:
        painter.print(answer(), text.head, Color::red);
        break;
      case Difference::Kind::changed:
        answer() << text.head;
        painter.print(answer(), text.before, Color::red);
        answer() << text.between;
        painter.print(answer(), text.after, Color::green);
        answer() << text.tail;
    }
    answer() << '\n';
  }
}

}  // namespace qelpro
