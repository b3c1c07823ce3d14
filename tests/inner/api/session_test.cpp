#include "api/session.h"
#include "objects/owners.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "support/line_break.h"
#include "support/scratch.h"

namespace {

using qelpro_test::bytes_of;
using qelpro_test::native;
using qelpro_test::Scratch;

constexpr qel::Key<qel::Text> kProbe{"Probe", {}, {}, "an entry that tests put into any section"};

TEST(Session, HoldsOneBlockOfEachKindInTheirOrder) {
  CQELPROReader session;
  const auto blocks = session.Blocks();
  ASSERT_EQ(blocks.size(), 38U);
  EXPECT_EQ(blocks.front(), &session.block<CQELPROBlockIOFileHeader>());
  EXPECT_EQ(blocks.back(), &session.block<CQELPROBlockIOCoInjectionFlowX>());
  for (std::size_t i = 1; i < blocks.size(); ++i) {
    EXPECT_TRUE(std::less<>()(blocks[i - 1], blocks[i])) << "block " << i;
  }
}

TEST(Session, AttachesNothingBeforeItIsToldTo) {
  CQELPROWriter session;
  for (CQELPROBlockIOBase* block : session.Blocks()) {
    char* text = nullptr;
    EXPECT_EQ(block->Read(kProbe, {}, text), qel::Result::no_file);
    EXPECT_EQ(block->Write(kProbe, {}, "1"), qel::Result::no_file);
  }
}

TEST(Session, AttachesEveryBlock) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  CQELPROReader session;
  ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kReading));
  EXPECT_TRUE(session.AttachDocument(&session.document()));
  EXPECT_TRUE(session.AttachDocument(&session.document())) << "a second time does no harm";
  for (CQELPROBlockIOBase* block : session.Blocks()) {
    char* text = nullptr;
    EXPECT_EQ(block->Read(kProbe, {}, text), qel::Result::absent);
  }
}

TEST(Session, IsNotAttachedToNothing) {
  CQELPROReader session;
  EXPECT_FALSE(session.AttachDocument(nullptr));
  char* text = nullptr;
  EXPECT_EQ(session.block<CQELPROBlockIOUnit>().Read(kProbe, {}, text), qel::Result::no_file);
}

TEST(Session, KeepsItsAttachmentWhenItIsGivenNothing) {
  CQELPROReader session;
  const Scratch scratch;
  const std::string path = scratch.file("[Unit]\nProbe = 1\n");
  ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kReading));
  ASSERT_TRUE(session.AttachDocument(&session.document()));
  EXPECT_FALSE(session.AttachDocument(nullptr));
  char* text = nullptr;
  EXPECT_EQ(session.block<CQELPROBlockIOUnit>().Read(kProbe, {}, text), qel::Result::done);
}

TEST(Session, GivesEachBlockASectionOfItsOwn) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  CQELPROWriter session;
  ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kWriting));
  ASSERT_TRUE(session.AttachDocument(&session.document()));
  int number = 0;
  for (CQELPROBlockIOBase* block : session.Blocks()) {
    if (block == &session.block<CQELPROBlockIOMoldTemperatureBCX>()) {
      continue;  // a name that reads as no header is never appended
    }
    EXPECT_EQ(block->Write(kProbe, qel::in_section(1), std::to_string(++number).c_str()),
              qel::Result::done)
        << number;
  }
  number = 0;
  for (CQELPROBlockIOBase* block : session.Blocks()) {
    if (block == &session.block<CQELPROBlockIOMoldTemperatureBCX>()) {
      continue;
    }
    char* text = nullptr;
    ASSERT_EQ(block->Read(kProbe, qel::in_section(1), text), qel::Result::done);
    EXPECT_EQ(text, std::to_string(++number)) << "no other block wrote over it";
  }
}

TEST(Session, FindsThePositionalSectionByTheFirstTokenOfItsHeader) {
  const Scratch scratch;
  const std::string path =
      scratch.file("\n[A]\n\n[SURFACE ELEMENT BOUNDARY CONDITION NAME]\nProbe = found\n");
  CQELPROReader session;
  ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kReading));
  ASSERT_TRUE(session.AttachDocument(&session.document()));
  char* text = nullptr;
  ASSERT_EQ(
      session.block<CQELPROBlockIOMoldTemperatureBCX>().CQELPROBlockIOBase::Read(kProbe, {}, text),
      qel::Result::done);
  EXPECT_STREQ(text, "found");
}

TEST(Session, CountsItsOwners) {
  auto* session = new CQELPROReader;
  EXPECT_EQ(qel::share(session), session);
  qel::release(session);
  EXPECT_EQ(session->owners, 1) << "the other owner holds it";
  qel::release(session);
}

TEST(Session, HoldsNoFileOpenBetweenStores) {
  const Scratch scratch;
  const std::string path = scratch.file("");
  CQELPROWriter session;
  ASSERT_TRUE(session.document().SetFilePath(path.c_str(), CQELPROIO::kWriting));
  ASSERT_TRUE(session.AttachDocument(&session.document()));
  ASSERT_EQ(session.block<CQELPROBlockIOUnit>().Write(kProbe, {}, "1"), qel::Result::done);
  EXPECT_EQ(bytes_of(path), native("\n[Unit]\nProbe                = 1\n"))
      << "complete after each write";
  std::FILE* stream = nullptr;
  EXPECT_FALSE(session.document().GetFilePtr(stream));
}

}  // namespace
