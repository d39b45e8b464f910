"""The page of the release in a browser, beside the program of the release; see ReleasedPage.mjs."""

import os
import shutil
import unittest

from packages import PAGE, ROOT, TARBALL, run, unpack


class Page(unittest.TestCase):
    def test_it_converts(self):
        said = run("node", "--test", "--test-reporter=tap", ROOT / "tests/release/ReleasedPage.mjs", env={
            **os.environ, "SATWECVT_ROOT": str(ROOT), "CONVERTER_PAGE": str(PAGE),
            "SATWECVT": str(unpack(TARBALL) / "bin/satwecvt"), "CHROMIUM": shutil.which("chromium")})
        self.assertIn("\n# pass 2\n", said)


if __name__ == "__main__":
    unittest.main()
