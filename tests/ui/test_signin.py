#!/usr/bin/python3
"""Signing in on the demo account, as a new user does."""

from vostui import CODE_FIELD, DEMO_CODE, DEMO_PHONE, PHONE_FIELD, VostTestCase, dishonest_nodes, main, walk

BAD_NUMBER = "That phone number isn’t valid. Enter it with + and the country code, for example +44 7700 900123."
BAD_CODE = "That code isn’t right. Check it and try again."
BAD_PASSWORD = "That password isn’t right. Try again."


class SignIn(VostTestCase):
    signed_in = False

    def sign_in_screen(self):
        vost = self.launch()
        vost.open_popover()
        return vost, vost.find("panel", "Sign in", timeout=20)

    def submit_number(self, vost, number):
        """Types the number, presses Return and waits for the code step; returns its field."""
        vost.fill(vost.find("text", PHONE_FIELD), number)
        vost.key("Return")
        return vost.find("text", CODE_FIELD, timeout=15)

    def test_signing_in_from_scratch_with_the_continue_button(self):
        vost, _ = self.sign_in_screen()
        continue_button = vost.find("push button", "Continue")
        self.assertIn("Press", continue_button.actions())
        vost.fill(vost.find("text", PHONE_FIELD), DEMO_PHONE)
        continue_button.press()
        code = vost.find("text", CODE_FIELD, timeout=15)
        vost.find("heading", "Enter your verification code")
        vost.fill(code, DEMO_CODE)
        vost.find("push button", "Continue").press()
        vost.find("list", "Chat list", timeout=20)
        rows = vost.wait_for_chats()
        self.assertTrue(rows[0].name.startswith("Vost Helper"), rows[0].name)

    def test_an_error_shows_only_as_the_answer_to_what_was_submitted(self):
        vost, screen = self.sign_in_screen()
        vost.find("text", PHONE_FIELD)
        # Nothing was submitted: no error greets the user, and the tree holds only
        # what is on screen.
        self.assertEqual(vost.all("alert"), [])
        names = [node.name for node in walk(screen)]
        self.assertNotIn("Hint: ", names)
        self.assertFalse([name for name in names if name.startswith("Received TDLib event")], names)
        self.assertEqual(dishonest_nodes(screen), [])
        vost.fill(vost.find("text", PHONE_FIELD), "+1 555 0199")
        vost.key("Return")
        self.assertEqual(vost.find("alert", timeout=10).name, BAD_NUMBER)
        # The right number moves on to the code, where the old error is gone.
        self.submit_number(vost, DEMO_PHONE)
        self.assertEqual(vost.all("alert"), [])
        vost.fill(vost.find("text", CODE_FIELD), "11111")
        vost.key("Return")
        self.assertEqual(vost.find("alert", timeout=10).name, BAD_CODE)

    def test_two_step_password_shows_its_hint(self):
        vost, _ = self.sign_in_screen()
        vost.fill(self.submit_number(vost, "+1 555 0101"), DEMO_CODE)
        vost.key("Return")
        password = vost.find("password text", timeout=15)
        self.assertEqual(password.description, "Two-step verification password")
        vost.find("paragraph", "Hint: the app's name, then demo")
        vost.fill(password, "vost")
        vost.key("Return")
        self.assertEqual(vost.find("alert", timeout=10).name, BAD_PASSWORD)
        vost.fill(password, "vostdemo")
        vost.key("Return")
        vost.wait_for_chats()

    def test_the_phone_field_takes_digits_only(self):
        vost, _ = self.sign_in_screen()
        field = vost.find("text", PHONE_FIELD)
        vost.fill(field, "12ab")
        self.assertEqual(field.text(), "12")
        vost.fill(field, "x+1 (555) 01-00y")
        self.assertEqual(field.text(), "+1 (555) 01-00")
        vost.fill(field, "12")
        vost.key("Return")
        self.assertEqual(vost.find("alert", timeout=10).name, BAD_NUMBER)

    def test_the_code_screen_names_the_number_and_a_different_one_can_be_used(self):
        vost, _ = self.sign_in_screen()
        self.submit_number(vost, "+1 555 0101")
        vost.find("paragraph", "We’ve sent the code for +1 555 0101 to the Telegram app on your other device.")
        vost.find("push button", "Use a different number").press()
        vost.find("heading", "Sign in to Telegram")
        field = vost.find("text", PHONE_FIELD)
        vost.absent("push button", "Use a different number")
        # A wrong number is answered on this screen; the right one gets its own code.
        vost.fill(field, "+1 555 0199")
        vost.key("Return")
        self.assertEqual(vost.find("alert", timeout=10).name, BAD_NUMBER)
        vost.fill(field, DEMO_PHONE)
        vost.key("Return")
        vost.find("paragraph", "We’ve sent the code for +1 555 0100 to the Telegram app on your other device.",
                  timeout=15)
        self.assertEqual(vost.all("alert"), [])
        vost.fill(vost.find("text", CODE_FIELD), DEMO_CODE)
        vost.key("Return")
        # +1 555 0101 would have asked for its password: the new number signed in.
        vost.wait_for_chats()

    def test_continue_waits_for_text(self):
        vost, _ = self.sign_in_screen()
        vost.fill(vost.find("text", PHONE_FIELD), "   ")
        vost.find("push button", "Continue").press()
        self.assertEqual(vost.all("alert"), [])
        vost.find("text", PHONE_FIELD)
        vost.find("heading", "Sign in to Telegram")


if __name__ == "__main__":
    main()
