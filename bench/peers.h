#pragma once

#include <string>
#include <unordered_map>

/// Libraries for files of sections and keys, each after the same four operations: load a file, get
/// a text, set one, save.
struct SimpleIniPeer {
  static constexpr const char* kName = "SimpleIni";
  SimpleIniPeer();
  SimpleIniPeer(const SimpleIniPeer&) = delete;
  SimpleIniPeer& operator=(const SimpleIniPeer&) = delete;
  ~SimpleIniPeer();
  bool load(const char* path);
  const char* get(const char* section, const char* key);
  void set(const char* section, const char* key, const char* value);
  bool save(const char* path);

 private:
  void* ini_;
};

struct GLibPeer {
  static constexpr const char* kName = "GLib";
  GLibPeer();
  GLibPeer(const GLibPeer&) = delete;
  GLibPeer& operator=(const GLibPeer&) = delete;
  ~GLibPeer();
  bool load(const char* path);
  const char* get(const char* section, const char* key);
  void set(const char* section, const char* key, const char* value);
  bool save(const char* path);

 private:
  void* file_;
  std::string text_;
};

struct PropertyTreePeer {
  static constexpr const char* kName = "PropertyTree";
  PropertyTreePeer();
  PropertyTreePeer(const PropertyTreePeer&) = delete;
  PropertyTreePeer& operator=(const PropertyTreePeer&) = delete;
  ~PropertyTreePeer();
  bool load(const char* path);
  const char* get(const char* section, const char* key);
  void set(const char* section, const char* key, const char* value);
  bool save(const char* path);

 private:
  void* tree_;
  std::string text_;
};

/// It reads alone, into a map by section and key.
struct InihPeer {
  static constexpr const char* kName = "inih";
  bool load(const char* path);
  const char* get(const char* section, const char* key);

 private:
  std::unordered_map<std::string, std::string> values_;
  std::string name_;
};
