// The rules every order dialog shares: the two number rules, the duplicate
// and existence boxes, and which records edit_heli_order refuses.
#include <cmath>
#include <string>

#include "heli_orders/heli_order.h"
#include "tests/support/test_host.h"
#include "util/numbers.h"

TEST(order_numbers, strict_takes_the_number_alone_lenient_its_leading_number) {
    const struct {
        const char *text;
        bool strict;
        bool lenient;
        float value;  // what an accepting rule reads
    } cases[] = {
        {"12.5", true, true, 12.5f},    {" 12.5", true, true, 12.5f},  {"-0", true, true, -0.0f},
        {"12.5 ", false, true, 12.5f},  {"12m", false, true, 12.0f},   {"2,5", false, true, 2.0f},
        {"12abc", false, true, 12.0f},  {"0x10", false, true, 0.0f},   {"1e3", true, true, 1000.0f},
        {"", false, false, 0},          {"  ", false, false, 0},       {"abc", false, false, 0},
        {"nan", false, false, 0},       {"inf", false, false, 0},      {"-inf", false, false, 0},
        {"1e39", false, false, 0},      {"-1e39x", false, false, 0},   {".", false, false, 0},
    };
    for (const auto &c : cases) {
        float strict = -7.0f, lenient = -7.0f;
        EXPECT_EQ(parse_number_strict(c.text, strict), c.strict) << '"' << c.text << '"';
        EXPECT_EQ(parse_number_lenient(c.text, lenient), c.lenient) << '"' << c.text << '"';
        // A refused text leaves the value as it was.
        EXPECT_EQ(strict, c.strict ? c.value : -7.0f) << c.text;
        EXPECT_EQ(lenient, c.lenient ? c.value : -7.0f) << c.text;
    }
}

class order_rules_test : public editor_test {
protected:
    void SetUp() override {
        editor_test::SetUp();
        ASSERT_EQ(start_editor(), 1);
    }
};

TEST_F(order_rules_test, name_boxes_name_the_object_and_only_ask_about_unknown_names) {
    host.existing_names = {"Alpha"};
    std::string asked, listed;
    ui_driver d;
    d.answer_box("Editor Question", IDYES, &asked);
    d.answer_box("Editor Question", IDNO);
    d.answer_box("Editor Error", IDOK, &listed);
    EXPECT_TRUE(check_object_name("Alpha"));  // known: nothing shown
    EXPECT_TRUE(check_object_name("Ghost"));
    EXPECT_FALSE(check_object_name("Ghost"));
    report_already_on_list("Alpha");
    EXPECT_DRIVER_OK(d);
    EXPECT_EQ(asked, "Object <Ghost> does not exist");
    EXPECT_EQ(listed, "Object <Alpha> already on list");
}

TEST_F(order_rules_test, a_null_record_or_an_unknown_kind_opens_nothing) {
    // Returning at all shows that no modal dialog opened.
    EXPECT_EQ(edit_heli_order(host.main_window, nullptr), 0);
    heli_order_record odd{};
    odd.kind = HELI_ORDER_KIND_COUNT;
    EXPECT_EQ(edit_heli_order(host.main_window, &odd), 0);
}
