tessaly_bench(Blur USES core/Imaging)
