// What the compiler's library sets aside for exceptions that find no memory, 72 KiB, it keeps for
// the life of a program. Linked into a library, it is the library's own, and would stay behind each
// time that a host lets go of it.

#ifdef QELPRO_OWN_RUNTIME

namespace __gnu_cxx {  // NOLINT(bugprone-reserved-identifier): the compiler's library has it
void __freeres();      // NOLINT(bugprone-reserved-identifier)
}

namespace {

[[gnu::destructor]] void give_back() { __gnu_cxx::__freeres(); }

}  // namespace

#endif
