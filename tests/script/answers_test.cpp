// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_fixture.h"

namespace varnholt {
namespace {

using Answers = ScriptTest;

TEST_F(Answers, MessagesAreWrittenWithTheirIcon) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.MessageCommand\n"),
              "message exclamation \"Title\" \"two\\r\\nlines\\t\\\"quoted\\\" \\\\\"\n"
              "message information \"Title\" \"i\"\n"
              "message question \"Title\" \"q\"\n"
              "message critical \"Title\" \"c\"\n"
              "message plain \"Title\" \"p\"\n");
}

TEST_F(Answers, AreGivenToTheQuestionsInTheirOrder) {
    EXPECT_EQ(transcriptOf("answer cancel\nanswer no\nanswer ok\nanswer yes\n"
                           "click frmEveryKind.YesNoCancelCommand\n"
                           "click frmEveryKind.YesNoCommand\n"
                           "click frmEveryKind.OkCancelCommand\n"
                           "click frmEveryKind.YesNoCancelCommand\n"),
              "question yes-no-cancel \"Title\" \"Really?\" -> cancel\n"
              "question yes-no \"Title\" \"Really?\" -> no\n"
              "question ok-cancel \"Title\" \"Really?\" -> ok\n"
              "question yes-no-cancel \"Title\" \"Really?\" -> yes\n");
    EXPECT_EQ(window().log, "answer 2;answer 7;answer 1;answer 6;");
}

TEST_F(Answers, PicksAreGivenToTheFileDialogsBesideTheAnswers) {
    EXPECT_EQ(transcriptOf("pick work files/my school.vht\nanswer yes\npick cancel\n"
                           "pick /elsewhere/a.vht\n"
                           "click frmEveryKind.YesNoCommand\n"
                           "click frmEveryKind.OpenCommand\nclick frmEveryKind.SaveCommand\n"
                           "click frmEveryKind.SaveCommand\n"),
              "question yes-no \"Title\" \"Really?\" -> yes\n"
              "dialog open \"/program/work files\" -> \"work files/my school.vht\"\n"
              "dialog save \"/program/work files/school.vht\" -> cancel\n"
              "dialog save \"/program/work files/school.vht\" -> \"/elsewhere/a.vht\"\n");
    EXPECT_EQ(window().log,
              "answer 6;picked /program/work files/my school.vht;picked nothing;"
              "picked /elsewhere/a.vht;");
}

TEST_F(Answers, AQuestionThatNoneIsLeftForEndsTheScriptWithStatusThree) {
    const Outcome result = runInWindow("\nclick frmEveryKind.YesNoCommand\nforms\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.faults,
              "test.vscript:2: no answer is queued for: question yes-no \"Title\" \"Really?\"\n");
    EXPECT_EQ(window().log, "");
}

TEST_F(Answers, AFileDialogThatNoPickIsLeftForEndsTheScriptWithStatusThree) {
    const Outcome result = runInWindow("answer yes\nclick frmEveryKind.OpenCommand\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.faults,
              "test.vscript:2: no pick is queued for: dialog open \"/program/work files\"\n");
}

TEST_F(Answers, AnAnswerThatTheQuestionHasNoButtonForIsNone) {
    const Outcome result = runInWindow("answer ok\nclick frmEveryKind.YesNoCommand\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.faults,
              "test.vscript:2: the queued answer ok does not fit: question yes-no \"Title\" "
              "\"Really?\"\n");
    EXPECT_EQ(run("answer cancel\nclick frmEveryKind.YesNoCommand\n").status, 3);
    EXPECT_EQ(run("answer yes\nclick frmEveryKind.OkCancelCommand\n").status, 3);
}

TEST_F(Answers, LeftOverAtTheEndAreStatusThree) {
    const Outcome answer = runInWindow("answer yes\nforms\n");
    EXPECT_EQ(answer.status, 3);
    EXPECT_EQ(answer.faults, "test.vscript:2: answers are left over at the end of the script\n");
    EXPECT_NE(answer.out, "");
}

TEST_F(Answers, APickLeftOverIsStatusThreeToo) {
    EXPECT_EQ(runInWindow("pick cancel\n").status, 3);
}

TEST_F(Answers, AMessageTakesNoAnswer) {
    EXPECT_EQ(runInWindow("answer ok\nclick frmEveryKind.MessageCommand\n").status, 3);
}

TEST_F(Answers, WhatTakesTimeTakesNoneAndTodayIsTheDayGiven) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.BusyCommand\nvalue frmEveryKind.log\n"),
              "value frmEveryKind#1.log = \"today 2026-01-15;\"\n");
}

}  // namespace
}  // namespace varnholt
