"""git_with_locks.py PORT FOLDER: serves the bare repositories of a folder, with LFS locks, on this machine.

Users name themselves, with any password. Fetches and pushes go to git's own program for servers;
locks, of which LFS has the published interface (git-lfs, docs/api/locking.md), are kept in memory.
"""

import base64
import http.server
import itertools
import json
import os
import subprocess
import sys
from urllib.parse import parse_qs, unquote, urlsplit

PORT, FOLDER = int(sys.argv[1]), sys.argv[2]
LOCKS_PATH = ".git/info/lfs/locks"
NUMBERS = itertools.count(1)
locks = {}  # By repository and path.


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.serve()

    def do_POST(self):
        self.serve()

    def serve(self):
        address = urlsplit(self.path)
        place = unquote(address.path)
        body = self.rfile.read(int(self.headers.get("Content-Length") or 0))
        kind, _, name = self.headers.get("Authorization", "").partition(" ")
        if kind != "Basic":
            self.answer(401, {"message": "who are you?"})
            return
        self.user = base64.b64decode(name).decode().partition(":")[0]
        if LOCKS_PATH in place:
            repository, action = place.split(LOCKS_PATH, 1)
            self.answer(*self.locking(repository, action, parse_qs(address.query), body))
        else:
            self.answer_with_git(place, address.query, body)

    def locking(self, repository, action, query, body):
        """The status and the document of an answer."""
        request = json.loads(body or b"{}")
        there = [lock for (where, _), lock in locks.items() if where == repository]
        if action == "/verify":
            ours = [lock for lock in there if lock["owner"]["name"] == self.user]
            return 200, {"ours": ours, "theirs": [lock for lock in there if lock not in ours]}
        if action.endswith("/unlock"):
            return self.unlock(repository, action.split("/")[1], request.get("force", False))
        if self.command == "GET":
            wanted = query.get("path", [None])[0]
            return 200, {"locks": [lock for lock in there if wanted in (None, lock["path"])]}
        key = (repository, request["path"])
        if key in locks:
            return 409, {"lock": locks[key], "message": "already created lock"}
        locks[key] = {"id": str(next(NUMBERS)), "path": request["path"],
                      "locked_at": "2026-01-31T09:30:00Z", "owner": {"name": self.user}}
        return 201, {"lock": locks[key]}

    def unlock(self, repository, number, is_forced):
        for key, lock in list(locks.items()):
            if key[0] == repository and lock["id"] == number:
                if lock["owner"]["name"] != self.user and not is_forced:
                    return 403, {"message": "the lock is not yours"}
                return 200, {"lock": locks.pop(key)}
        return 404, {"message": "there is no such lock"}

    def answer(self, status, document):
        body = json.dumps(document, separators=(",", ":")).encode()
        self.send_response(status)
        if status == 401:
            self.send_header("WWW-Authenticate", 'Basic realm="test"')
        self.send_header("Content-Type", "application/vnd.git-lfs+json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def answer_with_git(self, place, query, body):
        environment = dict(
            os.environ, GIT_PROJECT_ROOT=FOLDER, GIT_HTTP_EXPORT_ALL="1", REMOTE_USER=self.user,
            REQUEST_METHOD=self.command, PATH_INFO=place, QUERY_STRING=query,
            CONTENT_TYPE=self.headers.get("Content-Type", ""), CONTENT_LENGTH=str(len(body)),
            HTTP_CONTENT_ENCODING=self.headers.get("Content-Encoding", ""),
            GIT_PROTOCOL=self.headers.get("Git-Protocol", ""))
        answer = subprocess.run(["git", "http-backend"], input=body, env=environment,
                                stdout=subprocess.PIPE, check=False).stdout
        head, _, content = answer.partition(b"\r\n\r\n")
        lines = [line.split(": ", 1) for line in head.decode().splitlines()]
        status = [value for name, value in lines if name == "Status"]
        self.send_response(int(status[0].split()[0]) if status else 200)
        for name, value in lines:
            self.send_header(name, value)
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)

    def log_message(self, *_):
        pass


http.server.ThreadingHTTPServer(("127.0.0.1", PORT), Handler).serve_forever()
