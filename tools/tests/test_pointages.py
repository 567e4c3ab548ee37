import sys
import unittest
from pathlib import Path

from lecture import RACINE

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import pointages


class Pointages(unittest.TestCase):
    def test_regenere(self):
        scenario = (RACINE / "tests" / "scenarios" / "pointage_altaz.scn").read_text(encoding="utf-8")
        self.assertEqual(scenario, pointages.scenario())
        # The sky turns under a long slew: the proof must hold some that need more than one pass, and some that don't.
        self.assertIn("# 1 pass(es)", scenario)
        self.assertIn("# 3 pass(es)", scenario)


if __name__ == "__main__":
    unittest.main()
