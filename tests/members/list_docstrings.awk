# Lists the public members that a header declares: name, argument types and names, docstring, between tabs. Constructors,
# destructors and operators are left out, and so are the forms of a member for constant texts, which are templates.
function declared(text) {
  gsub(/ +/, " ", text)
  if (match(text, /[A-Za-z0-9_]+\(/)) {
    name = substr(text, RSTART, RLENGTH - 1)
    arguments = substr(text, RSTART + RLENGTH)
    sub(/\) *(const)? *;.*/, "", arguments)
    print name "\t" arguments "\t" docstring
  }
  docstring = ""
}

/^ public:/ { open = 1; next }
/^ private:/ || /^};/ { open = 0 }
!open { next }

/^  \/\/\// {
  line = $0
  sub(/^  \/\/\/ */, "", line)
  docstring = docstring (docstring == "" ? "" : " ") line
  next
}
/^  template / { in_template = 1 }
in_template {
  if (/^  }/ || /; *}$/) { in_template = 0; docstring = "" }
  next
}
/^  enum / { in_enum = 1 }
in_enum { if (/^  };/) { in_enum = 0; docstring = "" } ; next }
/^  [A-Za-z_][A-Za-z0-9_:*& ]*[ *&][A-Za-z0-9_]+\(/ {
  text = $0
  while (text !~ /;/ && (getline more) > 0) text = text more
  declared(text)
  next
}
{ docstring = "" }
