#!/usr/bin/python3
"""Formatted text in messages, as a screen reader and a pointer meet it: a link
under a text names its address, a block of code copies itself, a mention opens its
chat, a hashtag searches the chat for itself, and a spoiler stays out of reach until it is clicked."""

import subprocess

from vostui import VostTestCase, dishonest_nodes, main, walk, wait_until

CODE = "int main(int argc, char *argv[])\n{\n    QGuiApplication app(argc, argv);\n    return app.exec();\n}"
SECRET = "The butler did it"


class Formatting(VostTestCase):
    def open_qt_developers(self):
        vost = self.open_signed_in()
        vost.fill(vost.find("text", "Search"), "Qt Dev")
        vost.open_chat("Qt Developers")
        return vost, vost.find("list", "Messages")

    @staticmethod
    def click_on(vost, messages, line_text, words):
        """Clicks the middle of words in a one-line paragraph, where its characters
        about sit."""
        line = vost.find("paragraph", line_text, contains=True, within=messages)
        x, y, w, h = line.extents()
        at = line.name.index(words) + len(words) / 2
        vost.click((x + int(w * at / len(line.name)), y + h // 2))

    def clipboard(self):
        return subprocess.run(["xclip", "-o", "-selection", "clipboard"], env=self.desktop.env,
                              capture_output=True, text=True, timeout=5).stdout

    def test_a_text_link_names_its_address_and_a_code_block_copies_its_code(self):
        vost, messages = self.open_qt_developers()
        line = vost.find("paragraph", "The Qt 6 docs cover it; ask", contains=True, within=messages)
        self.assertIn("https://doc.qt.io/qt-6/", line.description)
        # The address is behind the words, not written out.
        self.assertNotIn("https://", line.name)
        code = vost.find("paragraph", "cpp code: int main(", contains=True, within=messages)
        self.assertIn("QGuiApplication app(argc, argv);", code.name)
        copy = vost.find("push button", "Copy", within=messages)
        self.assertIn("cpp", copy.description)
        copy.press()
        wait_until(lambda: self.clipboard() == CODE, what="the code on the clipboard")
        self.assertEqual(dishonest_nodes(vost.app()), [])

    def test_a_click_on_a_mention_opens_that_chat(self):
        vost, messages = self.open_qt_developers()
        self.click_on(vost, messages, "ask @emma_w. #qt6", "@emma_w")
        vost.find("panel", "Conversation with Emma Wilson", timeout=15)

    def test_a_click_on_a_hashtag_searches_the_chat_for_it(self):
        vost, messages = self.open_qt_developers()
        self.click_on(vost, messages, "ask @emma_w. #qt6", "#qt6")
        bar = vost.find("tool bar", "Search in chat")
        self.assertEqual(vost.find("text", "Search in chat", within=bar).text(), "#qt6")
        vost.find("label", "1 of 1", within=bar, timeout=10)

    def test_a_spoiler_is_out_of_the_accessible_tree_until_clicked(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        messages = vost.find("list", "Messages")
        line = vost.find("paragraph", "Messages can be bold, italic", contains=True, within=messages)
        row = vost.find("list item", "Vost Helper: Messages can be bold", contains=True, within=messages)

        def told():
            return [node for node in walk(vost.app())
                    if SECRET in (node.name or "") or SECRET in (node.description or "")]

        self.assertEqual(told(), [])
        self.assertIn("hidden text", line.name)
        # The secret is the paragraph's last line, from its start.
        x, y, w, h = line.extents()
        vost.click((x + 12, y + h - 8))
        # The paragraph is drawn anew without the veil.
        shown = vost.find("paragraph", SECRET, contains=True, within=messages)
        self.assertNotIn("hidden text", shown.name)
        self.assertIn(SECRET, row.name)


if __name__ == "__main__":
    main()
