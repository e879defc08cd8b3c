"""A browser on a page of ours, which tells what happens there: see desktop/peer_programs.h."""
import http.server
import json
import subprocess
import sys

PAGE = """<!doctype html><meta charset="utf-8"><title>peer</title>
<style>html, body { margin: 0; height: 100% } body { display: flex }
a, div { width: 50%; height: 100%; background: white } #source { background: COLOUR }</style>
SOURCE<div id="target"></div>
<script>
const text = TEXT;
let telling = Promise.resolve(), isOver = false, answers = 0;
function tell(line) {
    telling = telling.then(() => fetch("/tell", {method: "POST", body: line}));
}
const hexadecimal = bytes =>
    Array.from(new Uint8Array(bytes), byte => byte.toString(16).padStart(2, "0")).join("");
// Its own target takes nothing on the way.
let isOurs = false;
source.ondragstart = event => {
    isOurs = true;
    // A link is offered as the browser does it by itself.
    if (!source.href) {
        event.dataTransfer.effectAllowed = "copy";
        event.dataTransfer.setData("text/plain", text);
    }
};
source.ondragend = event => {
    isOurs = false;
    tell("end " + (event.dataTransfer.dropEffect == "none" ? "failed" : "done"));
};
function over(is) {
    if (is != isOver)
        tell("target " + (is ? "over" : "left"));
    isOver = is;
}
target.ondragenter = target.ondragover = event => {
    if (isOurs)
        return;
    event.preventDefault();
    event.dataTransfer.dropEffect = "copy";
    // A browser hears of the next move once it has handed the answer to one before on.
    if (++answers > 3)
        over(true);
};
target.ondragleave = () => {
    answers = 0;
    over(false);
};
target.ondrop = async event => {
    event.preventDefault();
    target.ondragleave();
    const file = event.dataTransfer.files[0];
    const text = event.dataTransfer.getData("text/plain");
    if (file)
        tell("bytes " + hexadecimal(await file.arrayBuffer()));
    else
        tell("text " + hexadecimal(new TextEncoder().encode(text)));
};
</script>
"""

colour, text, command = sys.argv[1], sys.argv[2], sys.argv[3:]
tag = f'<a id="source" href="{text}"></a>' if text.startswith("http") else (
    '<div id="source" draggable="true"></div>')
page = PAGE.replace("COLOUR", colour).replace("SOURCE", tag).replace(
    "TEXT", json.dumps(text)).encode()

class Site(http.server.BaseHTTPRequestHandler):
    def answer(self, content):
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)
    def do_GET(self):
        self.answer(page)
    def do_POST(self):
        print(self.rfile.read(int(self.headers["Content-Length"])).decode(), flush=True)
        self.answer(b"")
    def log_message(self, *arguments):
        pass

site = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Site)
address = f"http://127.0.0.1:{site.server_port}/"
subprocess.Popen([word.replace("{address}", address) for word in command],
                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
site.serve_forever()
