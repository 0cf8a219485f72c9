#!/usr/bin/python3
"""The Debian package as a user gets it.

Builds the package from this build tree with CPack into a temporary folder,
checks it the way Debian and software centres do (lintian, desktop-file-validate,
appstreamcli), unpacks it with dpkg-deb into a temporary root and starts the
unpacked program on the demo account under Xvfb with a tray host: it has to find
TDLib, the demo library and its helpers beside itself, far from the build tree.
"""

import glob
import os
import re
import shutil
import subprocess
import tempfile
import unittest

from vostui import BUILD_DIR, Desktop, Vost, main

APP_ID = "com.corvella.Vost"


def run(*args, **kwargs):
    return subprocess.run(args, capture_output=True, text=True, timeout=600, **kwargs)


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.work = tempfile.mkdtemp(prefix="vost-package.")
        made = run(os.environ.get("VOST_CPACK", "cpack"), "-G", "DEB", "-B", cls.work, "--config", os.path.join(BUILD_DIR, "CPackConfig.cmake"))
        if made.returncode != 0:
            shutil.rmtree(cls.work, ignore_errors=True)
            raise AssertionError("cpack failed:\n" + made.stdout + made.stderr)
        cls.package = glob.glob(os.path.join(cls.work, "vost_*_amd64.deb"))[0]
        cls.root = os.path.join(cls.work, "root")
        unpacked = run("dpkg-deb", "-x", cls.package, cls.root)
        if unpacked.returncode != 0:
            raise AssertionError("dpkg-deb -x failed:\n" + unpacked.stderr)
        cls.usr = os.path.join(cls.root, "usr")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.work, ignore_errors=True)

    def field(self, name):
        return run("dpkg-deb", "-f", self.package, name).stdout.strip()

    def test_the_package_names_what_the_program_loads_and_carries_tdlib(self):
        version = self.field("Version")
        self.assertEqual(os.path.basename(self.package), f"vost_{version}_amd64.deb")
        depends = self.field("Depends")
        # From the binaries, and what Qt loads at run time.
        for package in ("libqt6quick6", "libc6", "qt6-qpa-plugins", "qml6-module-qtquick-controls",
                        "qml6-module-qtmultimedia", "qt6-image-formats-plugins", "gstreamer1.0-plugins-good"):
            self.assertRegex(depends, rf"(^|, ){re.escape(package)}\b", depends)
        for package in ("fonts-noto-color-emoji", "qt6-wayland"):
            self.assertIn(package, self.field("Recommends"))
        for path in ("lib/vost/libtdjson.so", "lib/vost/demo/libtdjson.so", "lib/vost/vost-sticker-host",
                     "lib/vost/vost-page-fetcher", "lib/vost/vost-sound-player", "share/vost/Info.json",
                     "share/vost/Vost_Vost.bundle/Resources/lottie_light.min.js",
                     "share/doc/vost/copyright", "share/man/man1/vost.1.gz"):
            self.assertTrue(os.path.exists(os.path.join(self.usr, path)), path)
        # Nothing that would touch the user's data when the package goes.
        control = run("dpkg-deb", "-I", self.package).stdout
        for script in ("preinst", "postinst", "prerm", "postrm"):
            self.assertNotRegex(control, rf"\b{script}\b")

    def test_lintian_finds_no_error(self):
        checked = run("lintian", "--fail-on", "error", "--no-tag-display-limit", self.package)
        self.assertEqual(checked.returncode, 0, checked.stdout + checked.stderr)
        self.assertNotRegex(checked.stdout, r"(?m)^E: ")

    def test_the_desktop_metadata_validates_and_names_the_application_alike(self):
        entry = os.path.join(self.usr, "share", "applications", APP_ID + ".desktop")
        checked = run("desktop-file-validate", entry)
        self.assertEqual(checked.returncode, 0, checked.stdout + checked.stderr)
        with open(entry) as file:
            self.assertIn(f"Icon={APP_ID}\n", file.read())
        metainfo = os.path.join(self.usr, "share", "metainfo", APP_ID + ".metainfo.xml")
        checked = run("appstreamcli", "validate", "--no-net", metainfo)
        self.assertEqual(checked.returncode, 0, checked.stdout + checked.stderr)
        with open(metainfo) as file:
            text = file.read()
        self.assertIn(f"<id>{APP_ID}</id>", text)
        self.assertIn(f'<launchable type="desktop-id">{APP_ID}.desktop</launchable>', text)
        # The newest release described is the packaged version.
        self.assertIn(f'<release version="{self.field("Version")}"', text)
        for shot in re.findall(r"<image[^>]*>[^<]*/([^/<]+)</image>", text):
            self.assertTrue(os.path.exists(os.path.join(os.path.dirname(__file__), "../../docs/screenshots", shot)),
                            shot)
        icons = os.path.join(self.usr, "share", "icons", "hicolor")
        self.assertTrue(os.path.exists(os.path.join(icons, "scalable", "apps", APP_ID + ".svg")))
        # The tray glyph for themes that recolour symbolic icons.
        with open(os.path.join(icons, "symbolic", "apps", "vost-symbolic.svg")) as file:
            self.assertIn("<path", file.read())
        for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
            icon = os.path.join(icons, f"{size}x{size}", "apps", APP_ID + ".png")
            with open(icon, "rb") as file:
                header = file.read(24)
            self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n", icon)
            self.assertEqual((int.from_bytes(header[16:20], "big"), int.from_bytes(header[20:24], "big")),
                             (size, size), icon)

    def test_version_and_help_answer_without_a_display(self):
        vost = os.path.join(self.usr, "bin", "vost")
        env = {"PATH": "/usr/bin:/bin", "HOME": self.work, "LANG": "C.UTF-8"}
        answered = run(vost, "--version", env=env)
        self.assertEqual(answered.returncode, 0, answered.stderr)
        self.assertEqual(answered.stdout.strip(), "Vost " + self.field("Version"))
        answered = run(vost, "--help", env=env)
        self.assertEqual(answered.returncode, 0, answered.stderr)
        self.assertIn("--demo", answered.stdout)
        self.assertIn("--version", answered.stdout)
        answered = run(vost, "--no-such-option", "--help", env=env)
        self.assertNotEqual(answered.returncode, 0)
        self.assertIn("no-such-option", answered.stderr)
        # Nothing was started: no data folder, no lock.
        self.assertFalse(os.path.exists(os.path.join(self.work, ".local", "share", "Corvella")))
        dynamic = run("readelf", "-d", vost).stdout
        self.assertRegex(dynamic, r"RUNPATH.*\$ORIGIN/\.\./lib/vost")
        self.assertNotIn(BUILD_DIR, dynamic)

    def test_the_unpacked_program_signs_in_to_the_demo_account(self):
        desktop = Desktop()
        try:
            vost = Vost(desktop, binary=os.path.join(self.usr, "bin", "vost")).start()
            try:
                vost.sign_in()
                rows = vost.wait_for_chats()
                self.assertTrue(rows[0].name.startswith("Vost Helper"), rows[0].name)
                # TDLib came from the unpacked package, not from the build tree.
                with open(f"/proc/{vost.process.pid}/maps") as maps:
                    libraries = {line.split()[-1] for line in maps if "libtdjson" in line}
                self.assertEqual(libraries, {os.path.join(self.usr, "lib", "vost", "demo", "libtdjson.so")})
            except Exception:
                print("--- vost's output\n" + vost.output() + "\n--- what vost shows\n" + vost.describe())
                raise
            finally:
                vost.quit()
        finally:
            desktop.close()


if __name__ == "__main__":
    main()
