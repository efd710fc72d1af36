#!/usr/bin/env bash
# attrezzi.sh: what tests are skipped without is there, so that a suite that passes has run them all.
set -uo pipefail
bad=0
for tool in pdftotext pdftoppm dbus-run-session gdbus xvfb-run xwininfo import localedef \
  desktop-file-validate appstreamcli xmllint rsvg-convert update-mime-database update-desktop-database gio python3 weasyprint; do
  command -v "$tool" >/dev/null || { echo "$tool is not installed: tests would be skipped" >&2; bad=1; }
done
exit $bad
