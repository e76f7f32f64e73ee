"""Drives a Chromium through its developer protocol, which it speaks over two pipes: nothing but Python is needed.

    with Browser(find_browser()) as browser:
        page = browser.open("list.html")
        page.click(".tools button")
        print(page.evaluate("document.title"))
"""

import base64
import fcntl
import json
import os
import pathlib
import select
import shutil
import subprocess
import tempfile
import time

NAMES = ("chromium", "chromium-browser", "google-chrome", "chrome")
SWITCHES = ("--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-sync",
            "--disable-background-networking", "--disable-component-update", "--remote-debugging-pipe")
PATIENCE = 120  # seconds that any answer may take
KEYS = {"Enter": (13, "\r"), "Tab": (9, ""), " ": (32, " ")}  # code and text of the keys that are pressed


def find_browser():
    """The program, or None."""
    return next(filter(None, map(shutil.which, NAMES)), None)


class Browser:
    def __init__(self, program):
        self.folder = tempfile.TemporaryDirectory(prefix="mekbom-browser-", ignore_cleanup_errors=True)
        ours, theirs = self._pipes()

        def take_pipes():  # the browser reads from descriptor 3 and writes to 4
            os.dup2(theirs[0], 3)
            os.dup2(theirs[1], 4)

        self.process = subprocess.Popen(
            [program, *SWITCHES, f"--user-data-dir={self.folder.name}", "about:blank"], preexec_fn=take_pipes,
            pass_fds=(3, 4), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for descriptor in theirs:
            os.close(descriptor)
        self.reading, self.writing = ours
        self.number = 0
        self.unread = b""
        self.events = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        os.close(self.reading)
        os.close(self.writing)
        self.folder.cleanup()

    @staticmethod
    def _pipes():
        """Our ends and the browser's, (reading, writing) each, all of them clear of 3 and 4."""
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for pipe in (os.pipe(), os.pipe()) for end in pipe]
        return (ends[2], ends[1]), (ends[0], ends[3])

    def open(self, path, width=1200, height=800, dark=False):
        """A page that has been loaded."""
        page = Page(self, width, height, dark)
        page.load(path)
        return page

    def call(self, method, session=None, **parameters):
        """What the browser answers; its events until then are kept."""
        self.number += 1
        message = {"id": self.number, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        os.write(self.writing, json.dumps(message).encode() + b"\0")
        while True:
            answer = self.read()
            if answer.get("id") == self.number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]
            self.events.append(answer)

    def wait_for(self, method, session):
        """The parameters of the next event of that name, be it one of those kept."""
        while True:
            for index, event in enumerate(self.events):
                if event.get("method") == method and event.get("sessionId") == session:
                    del self.events[index]
                    return event["params"]
            self.events.append(self.read())

    def read(self):
        while b"\0" not in self.unread:
            if not select.select([self.reading], [], [], PATIENCE)[0]:
                raise TimeoutError("the browser does not answer")
            more = os.read(self.reading, 1 << 20)
            if not more:
                raise RuntimeError("the browser has ended")
            self.unread += more
        message, self.unread = self.unread.split(b"\0", 1)
        return json.loads(message)


class Page:
    def __init__(self, browser, width, height, dark):
        self.browser = browser
        target = browser.call("Target.createTarget", url="about:blank")["targetId"]
        self.session = browser.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Network", "Log"):
            self.call(domain + ".enable")
        self.resize(width, height)
        self.call("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def call(self, method, **parameters):
        return self.browser.call(method, self.session, **parameters)

    def resize(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1,
                  mobile=width < 600)

    def load(self, path):
        self.call("Page.navigate", url=pathlib.Path(path).resolve().as_uri())
        self.browser.wait_for("Page.loadEventFired", self.session)

    def evaluate(self, expression):
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(f"{expression}: {json.dumps(answer['exceptionDetails'])}")
        return answer["result"].get("value")

    def wait_until(self, expression):
        end = time.monotonic() + PATIENCE
        while not self.evaluate(expression):
            if time.monotonic() > end:
                raise TimeoutError(expression)
            time.sleep(0.02)

    def click(self, selector):
        """In the middle of the first element that the selector names, as a mouse does."""
        place = self.evaluate(f"""(() => {{ const element = document.querySelector({json.dumps(selector)});
            element.scrollIntoView({{ block: 'center' }}); const box = element.getBoundingClientRect();
            return {{ x: box.x + box.width / 2, y: box.y + box.height / 2 }}; }})()""")
        for kind in ("mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, button="left", clickCount=1, **place)

    def press(self, key):
        code, text = KEYS[key]
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, windowsVirtualKeyCode=code, text=text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key, windowsVirtualKeyCode=code)

    def type(self, text):
        self.call("Input.insertText", text=text)

    def screenshot(self, path, whole=False):
        data = self.call("Page.captureScreenshot", captureBeyondViewport=whole)["data"]
        pathlib.Path(path).write_bytes(base64.b64decode(data))

    def pdf(self, path):
        data = self.call("Page.printToPDF", preferCSSPageSize=True, printBackground=False)["data"]
        pathlib.Path(path).write_bytes(base64.b64decode(data))

    def complaints(self):
        """What the browser had to say of the page: exceptions, and all that its console would show."""
        self.evaluate("0")
        told = ("Runtime.exceptionThrown", "Log.entryAdded", "Runtime.consoleAPICalled", "Page.javascriptDialogOpening")
        return [event for event in self.browser.events
                if event.get("sessionId") == self.session and event["method"] in told]

    def requests(self):
        """What was asked for, the page itself included."""
        self.evaluate("0")
        return [event["params"]["request"]["url"] for event in self.browser.events
                if event.get("sessionId") == self.session and event["method"] == "Network.requestWillBeSent"]
