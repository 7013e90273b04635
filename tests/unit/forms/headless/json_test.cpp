#include "forms/headless/json.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

std::string Written(TextView text) {
  std::string out;
  JsonWriter(out).String(text);
  return out;
}

TEST(Json, CommasStandBetweenValuesOnly) {
  std::string out;
  JsonWriter json(out);
  json.BeginObject().Name("a").Number(-1).Name("b").BeginArray();
  json.Bool(true).Null().BeginArray().EndArray().BeginObject().EndObject();
  json.EndArray().Name("c").String("x").EndObject();
  EXPECT_EQ(out, R"({"a":-1,"b":[true,null,[],{}],"c":"x"})");
}

TEST(Json, EscapesWhatJsonCannotHold) {
  EXPECT_EQ(Written(u"a\"b\\c"), R"("a\"b\\c")");
  EXPECT_EQ(Written(u"\n\r\t"), R"("\n\r\t")");
  EXPECT_EQ(Written(Text(u"\0\x1f", 2)), R"("\u0000\u001f")");
}

TEST(Json, OtherLettersStayAsUtf8) {
  EXPECT_EQ(Written(u"Копирование \U0001F600"), "\"Копирование \U0001F600\"");
}

TEST(Json, ALoneSurrogateIsAnEscape) {
  EXPECT_EQ(Written(Text{u'a', 0xD83D}), "\"a\\ud83d\"");
  EXPECT_EQ(Written(Text{0xDE00, u'a'}), "\"\\ude00a\"");
  EXPECT_EQ(Written(Text{0xD83D, 0xD83D, 0xDE00}), "\"\\ud83d\U0001F600\"");
}

TEST(Json, Utf8IsEscapedToo) {
  std::string out;
  JsonWriter(out).String(std::string_view("Метка\"\n"));
  EXPECT_EQ(out, "\"Метка\\\"\\n\"");
}

}  // namespace
}  // namespace orvik::forms::headless
