#include <cstdio>
#include <filesystem>
#include <optional>

#include "QELPROEngine/QELPROEngine.h"
#include "faults/memory_rows.h"

namespace qelpro_test::memory {
namespace {

constexpr const char* kPathText = "the text of the path is kept and used by nothing";

// A stream that is closed at the end of the scope.
struct Stream {
  Stream(const std::string& path, const char* mode) : file(std::fopen(path.c_str(), mode)) {}
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() { std::fclose(file); }
  std::FILE* file;
};

// What readers and writers have in common.
template <class Object>
void add_life(std::vector<Row>& rows, const std::string& name) {
  const std::string of = name + "::";
  rows.push_back({of + name, "default", [](Stage& stage) {
                    stage.call([] {
                      const Object object;
                      return true;
                    });
                  }});
  Row copies{of + name, "copy", [](Stage& stage) {
               const std::string path = stage.process_file();
               Object object;
               object.SetFilePath(path.c_str());
               stage.call([&object] {
                 Object copy(object);
                 const char* its_path = nullptr;
                 return copy.GetFilePath(its_path) && its_path != nullptr;
               });
             }};
  copies.done_nevertheless = kPathText;
  rows.push_back(copies);
  Row assigns{of + "operator=", "", [](Stage& stage) {
                const std::string path = stage.process_file();
                Object object;
                object.SetFilePath(path.c_str());
                Object other;
                stage.call([&] {
                  other = object;
                  const Object& same = other;
                  other = same;
                  const char* its_path = nullptr;
                  return other.GetFilePath(its_path) && its_path != nullptr;
                });
              }};
  assigns.done_nevertheless = kPathText;
  rows.push_back(assigns);
  rows.push_back({of + "~" + name, "", [](Stage& stage) {
                    const std::string path = stage.process_file();
                    std::optional<Object> object(std::in_place);
                    object->SetFilePath(path.c_str());
                    stage.call([&] { object.reset(); });
                  }});
  rows.push_back({of + "SetFilePath", "narrow", [](Stage& stage) {
                    const std::string path = stage.process_file();
                    Object object;
                    stage.call([&] { return object.SetFilePath(path.c_str()); });
                  }});
  rows.push_back({of + "SetFilePath", "wide", [](Stage& stage) {
                    const std::wstring path = std::filesystem::path(stage.process_file()).wstring();
                    Object object;
                    stage.call([&] { return object.SetFilePath(path.c_str()); });
                  }});
  rows.push_back({of + "SetFilePtr", "", [](Stage& stage) {
                    Stream stream(stage.process_file(), "r+");
                    Object object;
                    stage.call([&] { return object.SetFilePtr(stream.file); });
                  }});
  rows.push_back({of + "CloseFile", "", [](Stage& stage) {
                    const std::string path = stage.process_file();
                    Object object;
                    object.SetFilePath(path.c_str());
                    stage.call([&] {
                      object.CloseFile();
                      return true;
                    });
                  }});
  rows.push_back({of + "GetFilePath", "", [](Stage& stage) {
                    const std::string path = stage.process_file();
                    Object object;
                    object.SetFilePath(path.c_str());
                    const char* given = nullptr;
                    stage.call([&] { return object.GetFilePath(given); },
                               [&] { return std::string(given != nullptr ? given : "none"); });
                  }});
}

struct RawRead {
  char buffer[100] = "untouched";
  char* text = buffer;
  [[nodiscard]] std::string tell() const { return std::string(text) + ", " + buffer; }
};

void add_raw_reads(std::vector<Row>& rows) {
  const std::string of = "CQELPROReader_Manipulator::";
  const auto add = [&](const char* member, const char* way, bool given, auto read) {
    rows.push_back({of + member, way, [given, read](Stage& stage) {
                      const std::string path = stage.process_file();
                      CQELPROReader_Manipulator reader;
                      reader.SetFilePath(path.c_str());
                      RawRead raw;
                      stage.call(
                          [&] { return read(reader, raw.text, given ? raw.buffer : nullptr); },
                          [&] { return raw.tell(); });
                    }});
  };
  const auto string = [](CQELPROReader_Manipulator& reader, char*& text, char* buffer) {
    return reader.ReadString("[FileHeader]", "Name", text, buffer, 100);
  };
  const auto value = [](CQELPROReader_Manipulator& reader, char*& text, char* buffer) {
    return reader.ReadValue("[FileHeader]", "Name", text, buffer, 100);
  };
  add("ReadString", "into a buffer", true, string);
  add("ReadString", "into the thread's", false, string);
  add("ReadValue", "into a buffer", true, value);
  add("ReadValue", "into the thread's", false, value);
}

void add_raw_writes(std::vector<Row>& rows) {
  const std::string of = "CQELPROWriter_Manipulator::";
  const auto add = [&](const char* member, const char* way, auto write) {
    rows.push_back({of + member, way, [write](Stage& stage) {
                      const std::string path = stage.short_file();
                      CQELPROWriter_Manipulator writer;
                      writer.SetFilePath(path.c_str());
                      stage.call([&] { return write(writer); });
                    }});
  };
  using Writer = CQELPROWriter_Manipulator;
  add("WriteString", "over a value", [](Writer& writer) {
    return writer.WriteString("[Flow-1]", "FillTime", "the text of a value that is long");
  });
  add("WriteString", "of a new key", [](Writer& writer) {
    return writer.WriteString("[Flow-1]", "A-key-of-many-letters", "a value");
  });
  add("WriteString", "of a new section", [](Writer& writer) {
    return writer.WriteString("[A-section-of-many-letters]", "A-key-of-many-letters",
                              "a value of many letters");
  });
  add("WriteItems", "", [](Writer& writer) {
    return writer.WriteItems("[Flow-1]", "Items-of-many-letters", "%d %s %g", 1,
                             "a text of many letters", 1.5);
  });
  Row units{of + "WriteUnitBlock", "", [](Stage& stage) {
              const std::string path = stage.process_file();
              CQELPROWriter_Manipulator writer;
              writer.SetFilePath(path.c_str());
              stage.call([&] { writer.WriteUnitBlock(); });
            }};
  units.leaves = Leaves::entries;
  rows.push_back(units);
  // An object whose session goes on at another path.
  rows.push_back({of + "SetFilePath", "another path", [](Stage& stage) {
                    const std::string first = stage.process_file();
                    const std::string other = first + " beside it";
                    CQELPROWriter_Manipulator writer;
                    writer.SetFilePath(first.c_str());
                    stage.call([&] { return writer.SetFilePath(other.c_str()); },
                               [&] {
                                 const char* path = nullptr;
                                 writer.GetFilePath(path);
                                 return std::string(path == first.c_str() ? "first" : "other");
                               });
                    std::filesystem::remove(other);
                  }});
}

template <class Object>
void add_empty(std::vector<Row>& rows, const std::string& name) {
  rows.push_back({name + "::" + name, "default",
                  [](Stage& stage) { stage.call([] { const Object object; }); }});
  rows.push_back({name + "::" + name, "copy", [](Stage& stage) {
                    const Object object;
                    stage.call([&] { const Object copy(object); });
                  }});
  rows.push_back({name + "::operator=", "", [](Stage& stage) {
                    Object object;
                    const Object other;
                    stage.call([&] { object = other; });
                  }});
  rows.push_back({name + "::~" + name, "", [](Stage& stage) {
                    std::optional<Object> object(std::in_place);
                    stage.call([&] { object.reset(); });
                  }});
}

}  // namespace

std::vector<Row> session_rows() {
  std::vector<Row> rows;
  add_life<CQELPROReader_Manipulator>(rows, "CQELPROReader_Manipulator");
  add_life<CQELPROWriter_Manipulator>(rows, "CQELPROWriter_Manipulator");
  add_raw_reads(rows);
  add_raw_writes(rows);
  add_empty<CQELPRORSVReader_Manipulator>(rows, "CQELPRORSVReader_Manipulator");
  add_empty<CQELPRORSVWriter_Manipulator>(rows, "CQELPRORSVWriter_Manipulator");
  return rows;
}

}  // namespace qelpro_test::memory
