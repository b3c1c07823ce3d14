#include "peers.h"

#define SI_NO_CONVERSION
#include <SimpleIni.h>
#include <glib.h>
#include <ini.h>

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>

SimpleIniPeer::SimpleIniPeer() : ini_(new CSimpleIniCaseA) {}
SimpleIniPeer::~SimpleIniPeer() { delete static_cast<CSimpleIniCaseA*>(ini_); }
bool SimpleIniPeer::load(const char* path) {
  return static_cast<CSimpleIniCaseA*>(ini_)->LoadFile(path) >= 0;
}
const char* SimpleIniPeer::get(const char* section, const char* key) {
  return static_cast<CSimpleIniCaseA*>(ini_)->GetValue(section, key);
}
void SimpleIniPeer::set(const char* section, const char* key, const char* value) {
  static_cast<CSimpleIniCaseA*>(ini_)->SetValue(section, key, value);
}
bool SimpleIniPeer::save(const char* path) {
  return static_cast<CSimpleIniCaseA*>(ini_)->SaveFile(path) >= 0;
}

GLibPeer::GLibPeer() : file_(g_key_file_new()) {}
GLibPeer::~GLibPeer() { g_key_file_free(static_cast<GKeyFile*>(file_)); }
bool GLibPeer::load(const char* path) {
  return g_key_file_load_from_file(static_cast<GKeyFile*>(file_), path, G_KEY_FILE_NONE, nullptr) !=
         0;
}
const char* GLibPeer::get(const char* section, const char* key) {
  char* value = g_key_file_get_value(static_cast<GKeyFile*>(file_), section, key, nullptr);
  if (value == nullptr) {
    return nullptr;
  }
  text_ = value;
  g_free(value);
  return text_.c_str();
}
void GLibPeer::set(const char* section, const char* key, const char* value) {
  g_key_file_set_value(static_cast<GKeyFile*>(file_), section, key, value);
}
bool GLibPeer::save(const char* path) {
  return g_key_file_save_to_file(static_cast<GKeyFile*>(file_), path, nullptr) != 0;
}

namespace {
using Tree = boost::property_tree::ptree;
Tree::path_type path_of(const char* section, const char* key) {
  return {std::string(section) + '\1' + key, '\1'};
}
}  // namespace

PropertyTreePeer::PropertyTreePeer() : tree_(new Tree) {}
PropertyTreePeer::~PropertyTreePeer() { delete static_cast<Tree*>(tree_); }
bool PropertyTreePeer::load(const char* path) try {
  boost::property_tree::read_ini(path, *static_cast<Tree*>(tree_));
  return true;
} catch (const boost::property_tree::ini_parser_error&) {
  return false;
}
const char* PropertyTreePeer::get(const char* section, const char* key) {
  const auto value = static_cast<Tree*>(tree_)->get_optional<std::string>(path_of(section, key));
  if (!value) {
    return nullptr;
  }
  text_ = *value;
  return text_.c_str();
}
void PropertyTreePeer::set(const char* section, const char* key, const char* value) {
  static_cast<Tree*>(tree_)->put(path_of(section, key), value);
}
bool PropertyTreePeer::save(const char* path) try {
  boost::property_tree::write_ini(path, *static_cast<Tree*>(tree_));
  return true;
} catch (const boost::property_tree::ini_parser_error&) {
  return false;
}

bool InihPeer::load(const char* path) {
  const auto take = [](void* to, const char* section, const char* name, const char* value) {
    static_cast<InihPeer*>(to)->values_.insert_or_assign(std::string(section) + '\1' + name, value);
    return 1;
  };
  return ini_parse(path, take, this) == 0;
}
const char* InihPeer::get(const char* section, const char* key) {
  name_.assign(section).append(1, '\1').append(key);
  const auto found = values_.find(name_);
  return found != values_.end() ? found->second.c_str() : nullptr;
}
