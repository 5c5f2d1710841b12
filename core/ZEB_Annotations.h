/*
 * What headers tell compilers and readers beyond types: what may be null, and who owns what. Compilers that
 * do not know a note see nothing in its place.
 */
#ifndef ZEB_ANNOTATIONS_H
#define ZEB_ANNOTATIONS_H

/*
 * Between ZEB_ASSUME_NONNULL_BEGIN and _END pointers without a note are not to be null: a parameter without
 * one must be given something, a result without one is something. ZEB_NULLABLE stands behind what may be null
 * or nil, and the comment says what that means.
 */
#if defined(__clang__)
#define ZEB_NULLABLE _Nullable
#define ZEB_NONNULL _Nonnull
/* Plain C and C++ know the notes as extensions. */
#define ZEB_ASSUME_NONNULL_BEGIN                                                                             \
    _Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Wnullability-extension\"")         \
        _Pragma("clang assume_nonnull begin")
#define ZEB_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end") _Pragma("clang diagnostic pop")
#else
#define ZEB_NULLABLE
#define ZEB_NONNULL
#define ZEB_ASSUME_NONNULL_BEGIN
#define ZEB_ASSUME_NONNULL_END
#endif

/* The result of a class operation that makes an object of the class it is sent to. Where `instancetype` is no
   more than `id`, the class named is what later messages are looked up in. */
#if defined(__clang__)
#define ZEB_INSTANCE_OF(named) instancetype
#else
#define ZEB_INSTANCE_OF(named) named
#endif

/* Behind an operation whose result points into its object: automatic reference counting then keeps that
   object until the innermost autorelease pool ends, although nothing else names it. */
#if defined(__clang__)
#define ZEB_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#else
#define ZEB_INNER_POINTER
#endif

/* Under automatic reference counting a field of the framework's, or an element of a block, is not the
   compiler's to retain. */
#if defined(__OBJC__) && defined(__has_feature)
#if __has_feature(objc_arc)
#define ZEB_UNRETAINED __unsafe_unretained
#endif
#endif
#if !defined(ZEB_UNRETAINED)
#define ZEB_UNRETAINED
#endif

#endif
