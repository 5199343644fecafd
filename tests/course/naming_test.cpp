#include <gtest/gtest.h>

#include <string>

#include "course/builtin.h"
#include "course/course.h"
#include "course/locs.h"
#include "platform/platform.h"

namespace {

using course::cs;

class CourseNaming : public ::testing::Test {
protected:
    void SetUp() override {
        course::fillLocs();
        cs.fox = 1;
        for (auto& row : cs.HS)
            for (auto& text : row) text.clear();
    }
    void TearDown() override { SetUp(); }

    std::string left = "previous left";
    std::string right = "previous right";
};

TEST_F(CourseNaming, VocabularyOnlyCourseSpeaksLocsOnBothSides) {
    course::nameSides(1, 3, 162, left, right);
    EXPECT_EQ(left, " Trees ");
    EXPECT_EQ(right, " A-cow-pasture ");
}

TEST_F(CourseNaming, Id160IsAnOrdinaryWordWhenFoxIs1) {
    cs.HS[4][1] = "left text";
    cs.HS[4][2] = "right text";
    course::nameSides(4, 160, 160, left, right);
    EXPECT_EQ(left, " A-cemetery ");
    EXPECT_EQ(right, " A-cemetery ");
}

TEST_F(CourseNaming, CustomCourseTakesHsForId160OnTheLeftOnly) {
    cs.fox = 2;
    cs.HS[7][1] = "the old mill";
    cs.HS[7][2] = "unused";
    course::nameSides(7, 160, 52, left, right);
    EXPECT_EQ(left, "the old mill");  // used as stored: no blanks added
    EXPECT_EQ(right, " iris-beds ");
}

TEST_F(CourseNaming, CustomCourseSettlesEachSideByItself) {
    cs.fox = 2;
    cs.HS[2][1] = "unused";
    cs.HS[2][2] = " a duck pond ";
    course::nameSides(2, 8, 160, left, right);
    EXPECT_EQ(left, " A-barn ");
    EXPECT_EQ(right, " a duck pond ");

    cs.HS[2][1] = "west";
    cs.HS[2][2] = "east";
    course::nameSides(2, 160, 160, left, right);
    EXPECT_EQ(left, "west");
    EXPECT_EQ(right, "east");
}

TEST_F(CourseNaming, CustomTextIsReadFromTheHoleInPlay) {
    cs.fox = 2;
    cs.HS[5][1] = "hole five";
    cs.HS[6][1] = "hole six";
    course::nameSides(6, 160, 1, left, right);
    EXPECT_EQ(left, "hole six");
}

TEST_F(CourseNaming, EmptyIdsGiveAnEmptyName) {
    course::nameSides(1, 0, 163, left, right);
    EXPECT_EQ(left, "");
    EXPECT_EQ(right, "");
    course::nameSides(1, 165, 0, left, right);
    EXPECT_EQ(left, "");
}

TEST_F(CourseNaming, IdOutsideTheVocabularyKeepsThePreviousName) {
    EXPECT_THROW(course::locname(1, 1, 166), platform::Failure);
    EXPECT_THROW(course::locname(1, 2, -1), platform::Failure);

    course::nameSides(1, 166, 5, left, right);
    EXPECT_EQ(left, "previous left");
    EXPECT_EQ(right, " A-Sand Trap ");  // the other side is still named

    course::nameSides(1, 6, -3, left, right);
    EXPECT_EQ(left, " A-Big Lake ");
    EXPECT_EQ(right, " A-Sand Trap ");
}

TEST_F(CourseNaming, BuiltInCourseAfterACustomRoundSpeaksTheCemetery) {
    cs.fox = 2;
    cs.HS[16][2] = "custom right of 16";
    cs.HS[17][2] = "custom right of 17";
    course::SetHolesData(6);
    for (int hole : {16, 17}) {
        course::nameSides(hole, cs.H[hole][3], cs.H[hole][4], left, right);
        EXPECT_EQ(right, " A-cemetery ") << hole;
        EXPECT_EQ(left, " A-rose-garden ") << hole;
    }
}

TEST_F(CourseNaming, LieIdsAreLegalSideIds) {
    course::SetHolesData(2);
    course::nameSides(5, cs.H[5][3], cs.H[5][4], left, right);
    EXPECT_EQ(left, " Trees ");
    EXPECT_EQ(right, " Fairway ");
}

}  // namespace
