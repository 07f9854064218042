"""The check of sizes finds what it is to find, and the sources of this tree pass it."""

import pathlib
import tempfile
import textwrap
import unittest

import check_sizes

ROOT = pathlib.Path(__file__).resolve().parents[2]


def sizes_of(source):
    return [(kind, name, size)
            for kind, name, _, size in check_sizes.sizes(textwrap.dedent(source))]


class Sizes(unittest.TestCase):
    def test_methods_are_what_is_called_so_in_the_body_of_a_class(self):
        self.assertEqual([("function", "four", 3), ("class", "Box", 7)], sizes_of("""\
            // A class Box { void not_this(); };
            class Box final : public Shape {
                Q_OBJECT
              public:
                explicit Box(int size);
                ~Box() override;
                [[nodiscard]] bool operator==(const Box&) const = default;
                [[nodiscard]] int three(
                    int a, int b) const;
                int four() const {
                    return 4;
                }
              signals:
                void five(const std::string& text = "f();");
                void onSix(std::function<void()> six);
                friend void no();
                using Callback = std::function<void(int)>;
              private:
                std::function<void(int)> value_ = [](int) {};
                int number_ = compute(3);
                std::vector<int> list_{};
            };
            """))

    def test_a_class_in_a_class_is_counted_by_itself(self):
        self.assertEqual([("class", "Inner", 2), ("class", "Outer", 1)], sizes_of("""\
            class Outer {
                struct Inner {
                    void a();
                    void b();
                };
                void c();
            };
            """))

    def test_a_function_is_as_long_as_its_body(self):
        self.assertEqual([("function", "Planner", 4), ("function", "run", 6)], sizes_of("""\
            namespace velmora {
            Planner::Planner(Store& store)
                : store_(store), list_{1, 2}, day_(store.day()) {
                store_.open();
                day_.open();
            }
            int run() {
                for (int i = 0; i < 3; ++i) {
                    const auto add = [&](int n) { total += n; };
                    add('{');
                }
            }
            }
            """))

    def test_too_much_of_anything_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "src").mkdir()
            methods = "".join(f"    void m{i}();\n" for i in range(46))
            (root / "src" / "Wide.h").write_text(f"class Wide {{\n{methods}}};\n")
            (root / "src" / "Long.cpp").write_text("void longOne() {\n" + "    a();\n" * 59 + "}\n"
                                                   + "void short() {\n" + "    a();\n" * 58 + "}\n")
            (root / "src" / "High.h").write_text("\n" * 451)
            self.assertEqual(["src/High.h: 451 lines, more than 450",
                              "src/Long.cpp:1: longOne has 61 lines, more than 60",
                              "src/Wide.h:1: Wide has 46 methods, more than 45"],
                             list(check_sizes.size_violations(root)))


class ThisTree(unittest.TestCase):
    def test_no_file_function_or_class_is_too_large(self):
        self.assertEqual([], list(check_sizes.size_violations(ROOT)))


if __name__ == "__main__":
    unittest.main()
