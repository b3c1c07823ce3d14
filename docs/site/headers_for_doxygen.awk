#!/usr/bin/awk -f
# The public headers as Doxygen is to read them, line for line: a comment that stands by itself above members is the title of their
# group, and a "%" is one (Doxygen takes it as a sign of its own).
function literal(text, parts, count, i, made) {
  count = split(text, parts, "`")
  for (i = 1; i <= count; ++i) {
    if (i % 2) gsub(/%/, "\\\\%", parts[i])
    made = made (i > 1 ? "`" : "") parts[i]
  }
  return made
}
function close_group() {
  if (in_group) print_now = "/** @} */ " print_now
  in_group = 0
}
# The comment that was read: a title where it speaks of members and a blank line follows.
function end_comment(follows, i) {
  print_now = ""
  if (comment ~ /clang-format/) close_group()
  else if (follows == "" && !hidden) {
    close_group()
    print_now = print_now "/** @name " comment " */ /** @{ */"
    in_group = 1
  }
  for (i = 1; i <= lines; ++i) print (i == 1 ? print_now : "")
  lines = 0
  comment = ""
}

/^ *\/\/ / {
  line = $0
  sub(/^ *\/\/ /, "", line)
  comment = comment (lines++ ? " " : "") line
  next
}
lines { end_comment($0) }
/^ private:/ { hidden = 1 }
/^};/ { hidden = 0 }
/^ private:/ || /^};/ { print_now = ""; close_group(); print print_now $0; next }
/\/\/\// { print literal($0); next }
{ print }
END { if (lines) end_comment("the end"); if (in_group) print "/** @} */" }
