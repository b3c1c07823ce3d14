// Writes the files that are made from the catalogue; or tells which of them are out of date; or
// prints the catalogue's rows, for scripts.

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "items.h"
#include "members.h"
#include "page.h"
#include "python_items.h"
#include "rows.h"

namespace {

struct MadeFile {
  std::string path;
  std::string contents;
};

std::string contents_of(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<MadeFile> made_files(const std::string& root) {
  std::vector<MadeFile> files;
  for (const ExportedObject* object : {&kReader, &kWriter}) {
    const std::string path = root + "/include/QELPROEngine/" + std::string(object->name) + ".h";
    const std::string header = contents_of(path);
    files.push_back({path, with_declarations(*object, header)});
    files.push_back(
        {root + (object->writes ? "/src/api/writer_members.cpp" : "/src/api/reader_members.cpp"),
         definitions(*object, header)});
  }
  const std::string items = root + "/include/QELG/items.h";
  files.push_back({items, with_items(contents_of(items))});
  files.push_back({root + "/python/qelpro/_items.py", python_items()});
  std::ostringstream page;
  print_page(root + "/docs", page);
  files.push_back({root + "/docs/format.md", page.str()});
  return files;
}

void write(const MadeFile& file) {
  std::ofstream to(file.path, std::ios::binary);
  if (!(to << file.contents).flush()) {
    throw std::runtime_error(file.path + " cannot be written");
  }
}

int run(const std::vector<std::string>& arguments) {
  if (arguments == std::vector<std::string>{"--rows"}) {
    print_rows(std::cout);
    return std::cout.flush() ? 0 : 1;
  }
  const bool checks = arguments.size() == 2 && arguments.front() == "--check";
  if (arguments.size() != 1 && !checks) {
    std::cerr << "usage: generate [--check] ROOT\n       generate --rows\n";
    return 2;
  }
  int result = 0;
  for (const MadeFile& file : made_files(arguments.back())) {
    if (contents_of(file.path) == file.contents) {
      continue;
    }
    if (checks) {
      std::cerr << file.path << " is not what the rows of src/blocks say: run ./dev generate\n";
      result = 1;
    } else {
      write(file);
    }
  }
  return result;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return run({arguments + 1, arguments + count});
  } catch (const std::exception& problem) {
    std::cerr << "generate: " << problem.what() << '\n';
    return 1;
  }
}
