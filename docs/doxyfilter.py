#!/usr/bin/env python3
"""Doxygen input filter for the library's headers.

The headers are commented in plain `//` comments: a file's leading comment
describes its class (or the file), a comment directly above a declaration
describes that declaration, `// --- Name ---` lines head a group of members, and a
trailing `// text` describes an enumerator or a field. This filter hands Doxygen
the same text as documentation comments, without touching the headers:

- the leading comment becomes the main class's description (the class named
  like the file, or the file's only class, when it has no comment of its own),
  otherwise the file's description; another class of the file without a comment
  of its own takes the leading comment's paragraph that begins with its name;
- a comment block directly above a declaration becomes its documentation;
- section lines inside a class become member groups (`\\name`);
- a trailing comment after an enumerator or a field becomes `///<`.

Line numbers are kept, so Doxygen's file and line references stay right.
Usage (Doxygen's INPUT_FILTER): doxyfilter.py FILE, writes to stdout.
"""
import os
import re
import sys

SECTION = re.compile(r'^\s*//\s*[-=]{2,}\s*(.*?)\s*[-=]{2,}\s*$')
ACCESS = re.compile(r'^\s*(public|protected|private|signals|Q_SIGNALS|public\s+slots|protected\s+slots|'
                    r'private\s+slots|public\s+Q_SLOTS)\s*:')
CLASS_DEF = re.compile(r'^\s*(?:class|struct)\s+(?:LCDWIDGETS_EXPORT\s+|LCDTRANSLATOR_EXPORT\s+|TXTRANSLATE_EXPORT\s+)?'
                       r'(\w+)\s*(?:final\s*)?(?::[^;]*)?(?:\{.*)?$')
NAMESPACE_OPEN = re.compile(r'^\s*namespace\s+(\w+)\s*\{\s*$')
NAMESPACE_CLOSE = re.compile(r'^\s*\}\s*//\s*namespace\b')


def is_comment(line):
    s = line.strip()
    return s.startswith('//') and not s.startswith('///') and not s.startswith('//!')


def comment_text(line):
    s = line.strip()[2:]
    return s.replace('*/', '* /')


def code_part(line):
    """Splits `code // comment` outside string literals; returns (code, comment) or None."""
    in_str = None
    i = 0
    while i < len(line) - 1:
        c = line[i]
        if in_str:
            if c == '\\':
                i += 2
                continue
            if c == in_str:
                in_str = None
        elif c in '"\'':
            in_str = c
        elif line.startswith('//', i):
            return line[:i], line[i + 2:]
        i += 1
    return None


def class_names(lines):
    """(line index, qualified name) of every class or struct defined in the file."""
    found = []
    stack = []
    for i, line in enumerate(lines):
        m = NAMESPACE_OPEN.match(line)
        if m:
            stack.append(m.group(1))
            continue
        if NAMESPACE_CLOSE.match(line):
            if stack:
                stack.pop()
            continue
        m = CLASS_DEF.match(line)
        if m and not line.rstrip().endswith(';') and not line.startswith((' ', '\t')):
            found.append((i, '::'.join(stack + [m.group(1)])))
    return found


def has_own_comment(lines, index):
    return index > 0 and is_comment(lines[index - 1])


def filter_lines(path, lines):
    out = list(lines)
    n = len(lines)

    # The leading comment.
    lead_end = 0
    while lead_end < n and is_comment(lines[lead_end]):
        lead_end += 1
    if lead_end:
        classes = class_names(lines)
        base = os.path.splitext(os.path.basename(path))[0].lower()
        target = None
        named = [c for c in classes if c[1].split('::')[-1].lower() == base]
        if named and not has_own_comment(lines, named[0][0]):
            target = named[0][1]
        elif len(classes) == 1 and not has_own_comment(lines, classes[0][0]):
            target = classes[0][1]
        command = '\\class %s' % target if target else '\\file'
        # Other classes of the file described in a paragraph of their own ("Name: ...").
        paragraphs = []
        for k in range(lead_end):
            text = comment_text(lines[k]).strip()
            if not text:
                paragraphs.append([])
            elif not paragraphs:
                paragraphs.append([text])
            else:
                paragraphs[-1].append(text)
        for index, name in classes:
            short = name.split('::')[-1]
            if name == target or has_own_comment(lines, index):
                continue
            for para in paragraphs:
                if para and re.match(r'^%s\b' % re.escape(short), para[0]):
                    text = ' '.join(para)
                    # "Name: does this" reads "Does this" on the class's own page.
                    if text.startswith(short + ': '):
                        text = text[len(short) + 2:]
                        text = text[:1].upper() + text[1:]
                    out[index] = '/** %s */ %s' % (text, lines[index])
                    break
        out[0] = '/** ' + comment_text(lines[0])
        for k in range(1, lead_end):
            out[k] = '    ' + comment_text(lines[k])
        if lead_end < n and lines[lead_end].strip() == '#pragma once':
            out[lead_end] = command + ' */'
        else:
            out[lead_end - 1] += '\n' + command + ' */'

    # Comment blocks, sections and trailing comments in the body.
    depth_class = 0  # brace depth at which the current class's members live
    open_group = False
    brace = 0
    class_depths = []
    i = lead_end
    while i < n:
        line = lines[i]
        stripped = line.strip()
        if is_comment(line):
            start = i
            while i < n and is_comment(lines[i]):
                i += 1
            nxt = lines[i].strip() if i < n else ''
            # Section lines head member groups inside a class.
            first_doc = start
            for k in range(start, i):
                m = SECTION.match(lines[k])
                if m and class_depths and brace == class_depths[-1]:
                    title = m.group(1)
                    prefix = '/*@}*/ ' if open_group else ''
                    out[k] = '%s/** \\name %s */ /*@{*/' % (prefix, title)
                    open_group = True
                    first_doc = k + 1
                elif m:
                    first_doc = k + 1
            declaration = (nxt and not nxt.startswith(('#', '}')) and not ACCESS.match(lines[i])
                           and not nxt.startswith('//'))
            if declaration and first_doc < i:
                out[first_doc] = lines[first_doc][:len(lines[first_doc]) - len(lines[first_doc].lstrip())] \
                    + '/** ' + comment_text(lines[first_doc])
                for k in range(first_doc + 1, i):
                    out[k] = '    ' + comment_text(lines[k])
                out[i - 1] += ' */'
            continue

        # Member groups end where the class or its access section ends.
        if open_group and class_depths and (ACCESS.match(line) or
                                            (stripped.startswith('}') and brace == class_depths[-1])):
            out[i] = '/*@}*/ ' + out[i]
            open_group = False

        split = code_part(line)
        code = split[0] if split else line
        if split and code.strip() and not code.strip().startswith('#'):
            c = code.rstrip()
            if c.endswith((';', ',')) or re.match(r'^\s*\w+(\s*=\s*[^;{}]+)?$', c):
                out[i] = code + '///<' + split[1].replace('*/', '* /')

        m = CLASS_DEF.match(line)
        opens = code.count('{')
        closes = code.count('}')
        if m and not line.rstrip().endswith(';'):
            class_depths.append(brace + 1)
        brace += opens - closes
        while closes and class_depths and brace < class_depths[-1]:
            class_depths.pop()
        i += 1
    if open_group:
        out.append('/*@}*/')
    return out


def main():
    path = sys.argv[1]
    with open(path, encoding='utf-8') as f:
        text = f.read()
    lines = text.split('\n')
    sys.stdout.write('\n'.join(filter_lines(path, lines)))


if __name__ == '__main__':
    main()
