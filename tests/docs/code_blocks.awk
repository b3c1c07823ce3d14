# Writes each fenced block of a Markdown file into a file of its own, FOLDER/LINE.LANGUAGE, and tells "LINE LANGUAGE REASON" of each; the reason
# is that of a comment "<!-- not run: REASON -->" right above the block. Commands that stand in no fence are told as "LINE unfenced".
/^```/ && !inside { inside = 1; language = substr($0, 4); first = FNR; file = folder "/" FNR "." language; printf "" >file; next }
/^```/ { inside = 0; close(file); print first, (language == "" ? "none" : language), reason; reason = ""; next }
inside { print >file; next }
/^<!-- not run: .* -->$/ { reason = $0; sub(/^<!-- not run: /, "", reason); sub(/ -->$/, "", reason); next }
/^    (\.\/dev|qelpro|stage\/|build\/|cmake|ninja|ctest|git|c\+\+|g\+\+|clang\+\+) / { print FNR, "unfenced" }
{ reason = "" }
