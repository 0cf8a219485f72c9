#!/usr/bin/python3
"""What each kind of message shows in Emma Wilson's chat, found as a screen reader
finds it: photos and albums with the viewer, documents with Save, voice and audio
players, video, stickers, cards for locations, contacts, calls and dice, date
separators, replies and link previews."""

import datetime
import filecmp
import glob
import http.server
import os
import re
import threading
import time

from vostui import VostTestCase, dishonest_nodes, main, wait_until

NEWEST = "You: Of course! See you at 7 🍕"

# Every kind in the chat's newest day, by the start of its row's name.
KINDS = {
    "album": r"Emma Wilson: Album, 3 photos, Trip album, ",
    "captioned photo": r"Emma Wilson: Photo, Sunset at the lake 🌅, ",
    "video": r"You: Video, 0:0\d, Short clip, ",
    "animation": r"Emma Wilson: GIF, ",
    "voice note": r"Emma Wilson: Voice message, 0:0\d, ",
    "audio": r"You: Audio .+, 0:0\d, ",
    "document": r"Emma Wilson: Document Itinerary\.pdf, \d+(\.\d)? kB, ",
    "image as a file": r"Emma Wilson: Photo, \d+:\d\d$",
    "sticker": r"(You|Emma Wilson): Sticker \S+, ",
    "location": r"Emma Wilson: Location 51\.50070° N, 0\.12460° W, ",
    "contact": r"You: Contact Chloe Hall, 15550123, ",
    "call": r"Emma Wilson: Incoming call, 5:12, ",
    "dice": r"You: 🎲 rolled 5, ",
}


class Messages(VostTestCase):
    def open_emma(self, **kwargs):
        vost = self.open_signed_in(**kwargs)
        messages = vost.open_transcript("Emma Wilson", NEWEST)
        return vost, messages

    def scroll_to(self, vost, messages, pattern, wheels=60):
        """Turns the wheel up until a message whose name matches pattern is fully
        in view; returns it."""
        top, bottom = messages.extents()[1], messages.extents()[1] + messages.extents()[3]
        for _ in range(wheels):
            for item in vost.messages():
                x, y, w, h = item.extents()
                if re.match(pattern, item.name) and y >= top and y + h <= bottom:
                    return item
            vost.wheel(messages, 1)
            time.sleep(0.15)
        self.fail(f"no message like {pattern!r}; seen {[m.name for m in vost.messages()]}")

    def test_every_kind_reads_as_what_it_is(self):
        vost, messages = self.open_emma()
        seen = set()
        for _ in range(80):
            seen.update(m.name for m in vost.messages())
            if any(re.match(KINDS["captioned photo"], name) for name in seen):
                break
            vost.wheel(messages, 1)
            time.sleep(0.1)
        missing = [kind for kind, pattern in KINDS.items() if not any(re.match(pattern, n) for n in seen)]
        self.assertEqual(missing, [], sorted(seen))
        # No row is a bare word and its time.
        placeholders = [n for n in seen if re.fullmatch(r".+?: (Unsupported message|Message|Video|Location|Contact|Call|"
                                                        r"Document|Sticker), \d+:\d\d(, sent)?", n)]
        self.assertEqual(placeholders, [])
        self.assertEqual(dishonest_nodes(messages), [])

    def test_an_album_is_one_bubble_and_a_photo_opens_the_viewer(self):
        vost, messages = self.open_emma()
        album = self.scroll_to(vost, messages, KINDS["album"])
        wait_until(lambda: len(vost.all("image", "Photo", within=album)) == 3 and
                            vost.all("image", "Photo", within=album), what="three photos in the album")
        self.assertEqual(len(vost.all("paragraph", "Trip album", within=album)), 1)
        # Once the photos have arrived, their items stay put.
        vost.absent("progress bar", within=album, timeout=15)
        vost.find("image", "Photo", within=album)
        vost.all("image", "Photo", within=album)[1].press()
        viewer = vost.find("dialog", "Photo viewer")
        shown = vost.find("image", "Photo", contains=True, within=viewer)
        position = re.fullmatch(r"Photo (\d+) of (\d+)", shown.name)
        self.assertIsNotNone(position, shown.name)
        self.assertGreaterEqual(int(position.group(2)), 4)
        for name in ("Previous", "Next", "Save", "Open", "Close"):
            vost.find("push button", name, within=viewer)
        vost.key("Right")
        vost.find("image", f"Photo {int(position.group(1)) + 1} of", contains=True, within=viewer)
        vost.key("Escape")
        vost.absent("dialog", "Photo viewer")
        # Esc closed the viewer only, not the chat.
        vost.find("list", "Messages")

    def test_a_document_is_saved_where_the_dialog_says(self):
        vost, messages = self.open_emma()
        document = self.scroll_to(vost, messages, KINDS["document"])
        save = vost.find("push button", "Save", within=document, timeout=15)
        vost.find("push button", "Open", within=document)
        target = os.path.join(self.desktop.work, "saved-itinerary.pdf")
        vost.save_through_dialog(save, target)
        downloaded = glob.glob(os.path.join(self.desktop.env["HOME"], ".local/share/Corvella/**/Itinerary*.pdf"),
                               recursive=True)
        self.assertTrue(downloaded)
        wait_until(lambda: filecmp.cmp(target, downloaded[0], shallow=False), what="the same bytes")
        self.assertTrue(vost.running())

    def save_from(self, vost, viewer, target=None):
        """Presses the viewer's Save; cancels the dialog, or saves to target. The
        popover and the viewer are back afterwards; returns the suggested name."""
        suggested = vost.save_through_dialog(vost.find("push button", "Save", within=viewer), target)
        vost.find("dialog", "Photo viewer")
        self.assertTrue(vost.running())
        return suggested

    def view_gif(self, vost, messages):
        """Scrolls to Emma Wilson's GIF and opens it in the viewer; returns the viewer."""
        animation = self.scroll_to(vost, messages, KINDS["animation"])
        gif = vost.find("image", "GIF", within=animation, timeout=15)

        def open_gif():
            # Pressing before the file is here does nothing.
            gif.press()
            return vost.all("dialog", "Photo viewer")
        wait_until(open_gif, timeout=15, what="the GIF in the viewer")
        return vost.find("dialog", "Photo viewer")

    def test_the_viewer_stays_through_saving_a_gif_and_a_photo(self):
        vost, messages = self.open_emma()
        # The GIF is newer than the album: the wheel reaches it first.
        viewer = self.view_gif(vost, messages)
        target = os.path.join(self.desktop.work, "saved-animation.gif")
        self.save_from(vost, viewer, target)
        self.save_from(vost, viewer)
        # A GIF plays without a media player.
        self.assertFalse(vost.media_player_loaded())
        vost.key("Escape")
        vost.absent("dialog", "Photo viewer")
        album = self.scroll_to(vost, messages, KINDS["album"])
        photos = wait_until(lambda: len(vost.all("image", "Photo", within=album)) == 3 and
                                    vost.all("image", "Photo", within=album), what="three photos in the album")
        vost.absent("progress bar", within=album, timeout=15)
        photos[0].press()
        viewer = vost.find("dialog", "Photo viewer")
        # A name from the message's date, with the picture's extension.
        suggested = self.save_from(vost, viewer)
        self.assertRegex(suggested, r"^Photo \d{4}-\d\d-\d\d \d\d\.\d\d\.jpg$")
        target = os.path.join(self.desktop.work, "saved-photo.jpg")
        self.save_from(vost, viewer, target)
        self.assertGreater(os.path.getsize(target), 0)
        vost.key("Escape")
        vost.absent("dialog", "Photo viewer")
        self.assertTrue(vost.running())

    def test_a_voice_note_plays_and_its_time_advances(self):
        vost, messages = self.open_emma()
        voice = self.scroll_to(vost, messages, KINDS["voice note"])
        vost.find("push button", "Play", within=voice, timeout=15).press()
        vost.find("push button", "Pause", within=voice)
        elapsed = wait_until(lambda: [p.name for p in vost.all("paragraph", within=voice)
                                      if re.fullmatch(r"0:0[1-9] of 0:0\d", p.name)],
                             timeout=15, what="the elapsed time advancing")
        self.assertTrue(elapsed)
        vost.find("push button", "Pause", within=voice).press()
        vost.find("push button", "Play", within=voice)

    def test_cards_carry_what_their_content_holds(self):
        vost, messages = self.open_emma()
        # A reply names what it answers; activating it makes that message current.
        answer = vost.find("list item", NEWEST, contains=True, within=messages)
        quote = vost.find("link", "Reply to Emma Wilson: Are we still on for tonight?", contains=True, within=answer)
        quote.press()
        wait_until(lambda: any(m.has_state("selected") and m.name.startswith("Emma Wilson: Are we still on")
                               for m in vost.messages()), what="the replied message current")
        location = self.scroll_to(vost, messages, KINDS["location"])
        vost.find("push button", "Open map", within=location)
        contact = self.scroll_to(vost, messages, KINDS["contact"])
        vost.find("push button", "Message", within=contact)


class Dates(VostTestCase):
    def test_days_are_separated_as_today_and_yesterday(self):
        # The demo's clock at noon today, so that its newest messages fall on today.
        noon = datetime.datetime.now().replace(hour=12, minute=0, second=0, microsecond=0)
        vost = self.launch(signed_in=False, extra_env={"VOST_DEMO_NOW": str(int(noon.timestamp()))})
        vost.open_popover()
        vost.sign_in()
        vost.wait_for_chats()
        messages = vost.open_transcript("Emma Wilson", NEWEST)
        headings = set()
        for _ in range(150):
            headings.update(h.name for h in vost.all("heading", within=messages))
            if {"Today", "Yesterday"} <= headings:
                break
            vost.wheel(messages, 1)
            time.sleep(0.15)
        self.assertLessEqual({"Today", "Yesterday"}, headings)


class _Page(http.server.BaseHTTPRequestHandler):
    PAGE = (b"<html><head><title>Plain</title>"
            b'<meta property="og:title" content="Loopback release notes">'
            b'<meta property="og:site_name" content="Loopback">'
            b'<meta property="og:description" content="Served by the test"></head><body></body></html>')

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(self.PAGE)))
        self.end_headers()
        self.wfile.write(self.PAGE)

    def log_message(self, *args):
        pass


class LinkPreviews(VostTestCase):
    def test_a_link_gets_its_preview_card(self):
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), _Page)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.shutdown)
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        url = f"http://127.0.0.1:{server.server_address[1]}/notes"
        vost.fill(vost.find("text", "Message"), "Read " + url)
        vost.key("Return")
        sent = vost.find("list item", "You: Read " + url, contains=True, timeout=15)
        vost.find("link", "Link preview: Loopback release notes", within=sent, timeout=15)


if __name__ == "__main__":
    main()
