#include "blocks/file_header.h"

#include <cstdio>

#include "platform/clock.h"

qel::Result CQELPROBlockIOFileHeader::WriteDate() {
  const qel::platform::LocalTime now = qel::platform::local_time();
  char text[qel::kCompoundLimit];
  std::snprintf(text, sizeof text, "%04d/%02d/%02d %02d:%02d:%02d", now.year, now.month, now.day,
                now.hour, now.minute, now.second);
  return Write<qel::Text>(qel::key_of(qel::file_header::kKeys, "Date"), {}, text);
}
